# What find_package(giacenza) finds: giacenza::giacenza for a host, giacenza::interfacce for who writes an outside part;
# and what pkg-config finds: giacenza for a host in C++, giacenza-c for one that takes the C interface and sees no Qt.
include(CMakePackageConfigHelpers)

set(cartella_pacchetto ${CMAKE_INSTALL_LIBDIR}/cmake/giacenza)
set(GIACENZA_INSTALLATE_PARTI ${CMAKE_INSTALL_LIBDIR}/giacenza)
configure_package_config_file(cmake/giacenzaConfig.cmake.in ${PROJECT_BINARY_DIR}/cmake/giacenzaConfig.cmake
    INSTALL_DESTINATION ${cartella_pacchetto} PATH_VARS GIACENZA_INSTALLATE_PARTI)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/cmake/giacenzaConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)

# What is built for tools/mutazioni is never installed, and its library needs rooms that no package holds.
if(NOT GIACENZA_STANZE_CONDIVISE)
    install(EXPORT giacenza NAMESPACE giacenza:: FILE giacenzaTargets.cmake DESTINATION ${cartella_pacchetto}
        COMPONENT sviluppo)
endif()
install(FILES ${PROJECT_BINARY_DIR}/cmake/giacenzaConfig.cmake ${PROJECT_BINARY_DIR}/cmake/giacenzaConfigVersion.cmake
    DESTINATION ${cartella_pacchetto} COMPONENT sviluppo)

# The prefix is told from where the file lies, so that an unpacked package works too.
set(cartella_pkgconfig ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH GIACENZA_VERSO_PREFISSO /${cartella_pkgconfig} /)
string(REGEX REPLACE "/$" "" GIACENZA_VERSO_PREFISSO "${GIACENZA_VERSO_PREFISSO}")
foreach(nome giacenza giacenza-c)
    configure_file(cmake/${nome}.pc.in ${PROJECT_BINARY_DIR}/cmake/${nome}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/cmake/${nome}.pc DESTINATION ${cartella_pkgconfig} COMPONENT sviluppo)
endforeach()
