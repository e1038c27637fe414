# The three Debian packages. They are made from what the build has installed, by component: ./package on a release build,
# the tests on the development build.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL libreria sviluppo deposito)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_PACKAGE_NAME giacenza)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# Nobody's address is made up: the field holds the name alone.
set(CPACK_PACKAGE_CONTACT "Gli autori di Giacenza")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${CPACK_PACKAGE_CONTACT})
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SOURCE giacenza)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# The programs find the library of this build; which package holds it is said below.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(versione_debian ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

set(CPACK_DEBIAN_LIBRERIA_PACKAGE_NAME libgiacenza${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_LIBRERIA_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRERIA_PACKAGE_SHLIBDEPS ON)
# Not linked, found by name when it runs: the fonts that the letters are measured with; the drivers of the two databases,
# of which a depot has one; the toolkit's own words in Italian.
set(CPACK_DEBIAN_LIBRERIA_PACKAGE_DEPENDS "fonts-liberation")
set(CPACK_DEBIAN_LIBRERIA_PACKAGE_RECOMMENDS
    "odbc-mariadb, libsqliteodbc, qt6-translations-l10n, fonts-dejavu-core")
# It registers the class by its name, for programs that are not linked with the library.
set(CPACK_DEBIAN_LIBRERIA_PACKAGE_SUGGESTS giacenza-deposito)
# Who is linked with the library needs the version that it was linked with, or a later one of the same major number.
set(shlibs ${PROJECT_BINARY_DIR}/packaging/shlibs)
file(CONFIGURE OUTPUT ${shlibs} @ONLY CONTENT
    "libgiacenza @PROJECT_VERSION_MAJOR@ libgiacenza@PROJECT_VERSION_MAJOR@ (>= @PROJECT_VERSION@)\n")
set(CPACK_DEBIAN_LIBRERIA_PACKAGE_CONTROL_EXTRA
    ${PROJECT_SOURCE_DIR}/packaging/libreria/triggers ${shlibs})
set(CPACK_DEBIAN_LIBRERIA_PACKAGE_MULTIARCH same)
set(CPACK_COMPONENT_LIBRERIA_DESCRIPTION "\
held shipments of a courier depot: library
Giacenza registers the shipments that a depot could not deliver, prints their
storage notices, charges and closes them, and issues the re-delivery to the
recipient or the return to the sender. A host program drives it through one
class, or through a C interface; the screens are in Italian, the data are the
host's own database, MariaDB or SQLite.
.
This package holds the library, the parts that it finds by name (print module,
waybill issuer, table search), and an extension for SQLite.")

set(CPACK_DEBIAN_SVILUPPO_PACKAGE_NAME libgiacenza-dev)
set(CPACK_DEBIAN_SVILUPPO_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_SVILUPPO_PACKAGE_DEPENDS
    "libgiacenza${PROJECT_VERSION_MAJOR} (= ${versione_debian}), qt6-base-dev (>= 6.4)")
set(CPACK_COMPONENT_SVILUPPO_DESCRIPTION "\
held shipments of a courier depot: development files
Giacenza registers the shipments that a depot could not deliver, prints their
storage notices, charges and closes them, and issues the re-delivery to the
recipient or the return to the sender.
.
This package holds what a host program or an outside part is built with: the
headers for C++ and C, the files for CMake and pkg-config, and the guide for
integrators with its examples.")

set(CPACK_DEBIAN_DEPOSITO_PACKAGE_NAME giacenza-deposito)
set(CPACK_DEBIAN_DEPOSITO_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_DEPOSITO_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_DEPOSITO_PACKAGE_DEPENDS
    "libgiacenza${PROJECT_VERSION_MAJOR} (= ${versione_debian}), libsqliteodbc, qt6-translations-l10n")
set(CPACK_DEBIAN_DEPOSITO_PACKAGE_RECOMMENDS "odbc-mariadb, fonts-dejavu-core")
# Where the password of a server may be kept; without one it is asked for.
set(CPACK_DEBIAN_DEPOSITO_PACKAGE_SUGGESTS "gnome-keyring | kwalletmanager")
set(CPACK_DEBIAN_DEPOSITO_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/deposito/conffiles
    ${PROJECT_SOURCE_DIR}/packaging/deposito/postinst ${PROJECT_SOURCE_DIR}/packaging/deposito/prerm)
set(CPACK_COMPONENT_DEPOSITO_DESCRIPTION "\
held shipments of a courier depot: host program
Giacenza registers the shipments that a depot could not deliver, prints their
storage notices, charges and closes them, and issues the re-delivery to the
recipient or the return to the sender.
.
This package holds the depot's own program, a generator of demonstration data
with a demonstration, the schema of the database for MariaDB and SQLite, and
the operator's guide, in Italian.")

include(CPack)
