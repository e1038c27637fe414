#pragma once

/// Marks what crosses the border of the shared library: the public class, the exceptions and the interfaces
/// of the outside parts. Everything else is hidden.
#define GIACENZA_EXPORT __attribute__((visibility("default")))
