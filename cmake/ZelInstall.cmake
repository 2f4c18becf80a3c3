# The installed package: one export per namespace, and the files that find_package() reads.

include(CMakePackageConfigHelpers)

set(ZEL_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/ZelPackageModel")

foreach(namespace IN ITEMS Zel Tano)
    get_property(libraries GLOBAL PROPERTY ZEL_${namespace}_LIBRARIES)
    install(TARGETS ${libraries} EXPORT ${namespace}Targets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
    install(EXPORT ${namespace}Targets NAMESPACE ${namespace}:: DESTINATION "${ZEL_CMAKE_DIR}")
endforeach()

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/ZelPackageModelConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/ZelPackageModelConfig.cmake"
    INSTALL_DESTINATION "${ZEL_CMAKE_DIR}")
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/ZelPackageModelConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/ZelPackageModelConfig.cmake"
    "${PROJECT_BINARY_DIR}/ZelPackageModelConfigVersion.cmake"
    DESTINATION "${ZEL_CMAKE_DIR}")
