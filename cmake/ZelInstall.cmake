# The installed package. Each library is a component of find_package(ZelPackageModel), with its own
# export and pkg-config file.

include(CMakePackageConfigHelpers)

set(ZEL_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/ZelPackageModel")
set(ZEL_PKGCONFIG_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH ZEL_PREFIX_FROM_PKGCONFIG "/${ZEL_PKGCONFIG_DIR}" "/")
set(ZEL_QT_MINIMUM "${ZEL_QT_MINIMUM_${ZEL_QT_MAJOR}}")

# The pkg-config module of a target: zel-version for Zel::Version, Qt5Core for Qt5::Core.
function(zel_pkgconfig_module target result)
    if(target MATCHES "^(Zel|Tano)::(.*)$")
        string(TOLOWER "${CMAKE_MATCH_1}-${CMAKE_MATCH_2}" module)
    else()
        string(REPLACE "::" "" module "${target}")
    endif()
    set(${result} ${module} PARENT_SCOPE)
endfunction()

# Sets the variables of ZelModule.pc.in and writes a library's pkg-config file. Private dependencies
# are omitted, since the library loads them itself.
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

# Below, ZEL_COMPONENTS lists the components in dependency order, and ZEL_COMPONENT_DEPENDS has a
# line of CMake per component with the components and Qt modules that it needs.
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
