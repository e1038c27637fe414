#pragma once

namespace giacenza {

class Forme;

/// Names every form of the component to the set of a thread. The forms live in libraries of their own, which
/// know nothing of each other; this is where they meet.
void registraForme(Forme& forme);

} // namespace giacenza
