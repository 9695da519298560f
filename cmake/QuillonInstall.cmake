# The CMake package and the pkg-config file; each library installs itself.
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Quillon")
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/QuillonConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/QuillonConfig.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/QuillonConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/QuillonConfig.cmake" "${PROJECT_BINARY_DIR}/QuillonConfigVersion.cmake"
    DESTINATION "${package_dir}")
install(EXPORT QuillonTargets NAMESPACE Quillon:: DESTINATION "${package_dir}")

configure_file("${PROJECT_SOURCE_DIR}/cmake/quillon.pc.in" "${PROJECT_BINARY_DIR}/quillon.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/quillon.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
