# The installed package: each library is a component of find_package(ZelPackageModel), with an export
# of its own and a file for pkg-config.

include(CMakePackageConfigHelpers)

set(ZEL_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/ZelPackageModel")
set(ZEL_PKGCONFIG_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH ZEL_PREFIX_FROM_PKGCONFIG "/${ZEL_PKGCONFIG_DIR}" "/")
set(ZEL_QT_MINIMUM "${ZEL_QT_MINIMUM_${ZEL_QT_MAJOR}}")

# The module of pkg-config for a target: Zel::Version is zel-version, Qt5::Core is Qt5Core.
function(zel_pkgconfig_module target result)
    if(target MATCHES "^(Zel|Tano)::(.*)$")
        string(TOLOWER "${CMAKE_MATCH_1}-${CMAKE_MATCH_2}" module)
    else()
        string(REPLACE "::" "" module "${target}")
    endif()
    set(${result} ${module} PARENT_SCOPE)
endfunction()

# Sets the variables that ZelModule.pc.in needs, and writes a library's file for pkg-config. What the
# library needs privately, it loads itself.
function(zel_install_pkgconfig library)
    get_target_property(name ${library} ZEL_NAME)
    get_target_property(depends ${library} ZEL_DEPENDS)
    set(modules)
    foreach(depend IN LISTS depends)
        zel_pkgconfig_module(${depend} module)
        list(APPEND modules ${module})
    endforeach()
    list(JOIN modules ", " requires)
    zel_pkgconfig_module(${name} module)
    configure_file("${CMAKE_CURRENT_FUNCTION_LIST_DIR}/ZelModule.pc.in"
        "${PROJECT_BINARY_DIR}/${module}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${module}.pc" DESTINATION "${ZEL_PKGCONFIG_DIR}")
endfunction()

# Below, ZEL_COMPONENTS lists the components after those that they depend on, and
# ZEL_COMPONENT_DEPENDS has a line of CMake for each, with the components and parts of Qt that it
# needs.
get_property(libraries GLOBAL PROPERTY ZEL_LIBRARIES)
set(ZEL_COMPONENTS)
set(ZEL_COMPONENT_DEPENDS)
foreach(library IN LISTS libraries)
    get_target_property(component ${library} EXPORT_NAME)
    get_target_property(name ${library} ZEL_NAME)
    get_target_property(depends ${library} ZEL_DEPENDS)
    get_target_property(private_depends ${library} ZEL_PRIVATE_DEPENDS)
    string(REGEX REPLACE "::.*" "" namespace ${name})
    install(TARGETS ${library} EXPORT ${component}Targets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
    install(EXPORT ${component}Targets NAMESPACE ${namespace}:: DESTINATION "${ZEL_CMAKE_DIR}")
    zel_install_pkgconfig(${library})

    list(APPEND ZEL_COMPONENTS ${component})
    set(parts)
    foreach(depend IN LISTS depends private_depends)
        string(REGEX REPLACE ".*::" "" part ${depend})
        if(depend MATCHES "^(Zel|Tano)::")
            list(APPEND parts ${part})
        elseif(depend MATCHES "^Qt")
            list(APPEND parts Qt${part})
        endif()
    endforeach()
    string(REPLACE ";" " " parts "${parts}")
    string(APPEND ZEL_COMPONENT_DEPENDS "set(_zel_${component}_depends ${parts})\n")
endforeach()
string(REPLACE ";" " " ZEL_COMPONENTS "${ZEL_COMPONENTS}")

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/ZelPackageModelConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/ZelPackageModelConfig.cmake"
    INSTALL_DESTINATION "${ZEL_CMAKE_DIR}")
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/ZelPackageModelConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/ZelPackageModelConfig.cmake"
    "${PROJECT_BINARY_DIR}/ZelPackageModelConfigVersion.cmake"
    DESTINATION "${ZEL_CMAKE_DIR}")
