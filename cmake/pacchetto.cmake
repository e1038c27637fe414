# What find_package(giacenza) finds: giacenza::giacenza for a host, giacenza::interfacce for who writes an outside part.
include(CMakePackageConfigHelpers)

set(cartella_pacchetto ${CMAKE_INSTALL_LIBDIR}/cmake/giacenza)
set(GIACENZA_INSTALLATE_PARTI ${CMAKE_INSTALL_LIBDIR}/giacenza)
configure_package_config_file(cmake/giacenzaConfig.cmake.in ${PROJECT_BINARY_DIR}/cmake/giacenzaConfig.cmake
    INSTALL_DESTINATION ${cartella_pacchetto} PATH_VARS GIACENZA_INSTALLATE_PARTI)
# Before version 1 a minor version may change the interface.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/cmake/giacenzaConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)

install(EXPORT giacenza NAMESPACE giacenza:: FILE giacenzaTargets.cmake DESTINATION ${cartella_pacchetto})
install(FILES ${PROJECT_BINARY_DIR}/cmake/giacenzaConfig.cmake ${PROJECT_BINARY_DIR}/cmake/giacenzaConfigVersion.cmake
    DESTINATION ${cartella_pacchetto})
