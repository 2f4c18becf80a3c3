# Settings shared by all targets of this project, and one function per kind of target.

include(GNUInstallDirs)
include(GenerateExportHeader)
include(CheckCXXCompilerFlag)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

# The build tree mirrors the install tree, so that libraries find their data the same way in both.
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR}")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_BINDIR}")
file(RELATIVE_PATH ZEL_LIBDIR_FROM_BINDIR
    "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
file(RELATIVE_PATH ZEL_DATADIR_FROM_LIBDIR
    "/${CMAKE_INSTALL_LIBDIR}" "/${CMAKE_INSTALL_DATADIR}")
file(RELATIVE_PATH ZEL_DATADIR_FROM_BINDIR
    "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_DATADIR}")

set(ZEL_QT "Qt${ZEL_QT_MAJOR}")
set(ZEL_QT_MINIMUM_5 5.15)
set(ZEL_QT_MINIMUM_6 6.4)
find_package(${ZEL_QT} ${ZEL_QT_MINIMUM_${ZEL_QT_MAJOR}} REQUIRED COMPONENTS Core Gui Widgets LinguistTools)
find_package(EXPAT 2.5 REQUIRED)
find_package(ICU REQUIRED COMPONENTS uc) # also loaded by QtCore

# Do not lint the code that CMake and Qt generate into the build tree. clang-tidy requires at least
# one check.
if(CMAKE_CXX_CLANG_TIDY)
    file(WRITE "${PROJECT_BINARY_DIR}/.clang-tidy" "Checks: '-*,misc-unused-alias-decls'\n")
endif()

# Warnings and strict Qt settings for our own sources.
add_library(zel_strict INTERFACE)
target_compile_options(zel_strict INTERFACE
    -Wall -Wextra -Wconversion $<$<BOOL:${ZEL_WERROR}>:-Werror>)
target_compile_definitions(zel_strict INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING QT_STRICT_ITERATORS QT_USE_QSTRINGBUILDER
    QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050F00)

# The flags of Debian's dpkg-buildflags with hardening=+all, if the compiler supports them. Compiler
# flags apply to optimized builds only, since one of them needs the optimizer. All objects are
# position-independent, as Qt requires.
add_library(zel_hardened INTERFACE)
if(ZEL_HARDEN)
    set(optimized "$<CONFIG:Release,RelWithDebInfo,MinSizeRel>")
    foreach(flag IN ITEMS -fstack-protector-strong -fstack-clash-protection -fcf-protection)
        string(MAKE_C_IDENTIFIER "ZEL_HAS${flag}" is_known)
        check_cxx_compiler_flag(${flag} ${is_known})
        if(${is_known})
            target_compile_options(zel_hardened INTERFACE $<${optimized}:${flag}>)
        endif()
    endforeach()
    target_compile_options(zel_hardened INTERFACE
        "$<${optimized}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
    target_link_options(zel_hardened INTERFACE
        LINKER:-z,relro LINKER:-z,now $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie>)
endif()
target_link_libraries(zel_strict INTERFACE zel_hardened)

# zel_add_library(<target> NAMESPACE <Zel|Tano> EXPORT_NAME <Name> HEADER_PREFIX <dir>
#                 SOURCES ... [DEPENDS public-dependency ...] [PRIVATE_DEPENDS ...])
#
# A shared library with hidden visibility, its export header <dir>/<target>_export.h, the public
# headers under include/, an alias with the name in installed packages, and its install rules.
function(zel_add_library target)
    cmake_parse_arguments(arg "" "NAMESPACE;EXPORT_NAME;HEADER_PREFIX"
        "SOURCES;DEPENDS;PRIVATE_DEPENDS" ${ARGN})
    set(generated "${CMAKE_CURRENT_BINARY_DIR}/include")

    file(GLOB_RECURSE headers CONFIGURE_DEPENDS include/*.h)
    add_library(${target} SHARED ${arg_SOURCES} ${headers})
    add_library(${arg_NAMESPACE}::${arg_EXPORT_NAME} ALIAS ${target})
    generate_export_header(${target}
        EXPORT_FILE_NAME "${generated}/${arg_HEADER_PREFIX}/${target}_export.h")

    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${arg_EXPORT_NAME}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        INSTALL_RPATH "$ORIGIN")
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_include_directories(${target}
        PUBLIC
            "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/include>"
            "$<BUILD_INTERFACE:${generated}>"
            "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>"
        PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/src")
    target_link_libraries(${target}
        PUBLIC ${arg_DEPENDS} PRIVATE ${arg_PRIVATE_DEPENDS} $<BUILD_INTERFACE:zel_strict>)

    set(outside ${arg_DEPENDS} ${arg_PRIVATE_DEPENDS})
    list(FILTER outside EXCLUDE REGEX "^(Zel|Tano)::")
    set_target_properties(${target} PROPERTIES
        ZEL_OUTSIDE_DEPENDS "${outside}"
        ZEL_NAME ${arg_NAMESPACE}::${arg_EXPORT_NAME}
        ZEL_DEPENDS "${arg_DEPENDS}"
        ZEL_PRIVATE_DEPENDS "${arg_PRIVATE_DEPENDS}")
    set_property(GLOBAL APPEND PROPERTY ZEL_LIBRARIES ${target})
    install(DIRECTORY include/ "${generated}/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
        FILES_MATCHING PATTERN "*.h")
endfunction()

# zel_add_program(<target> SOURCES ... [BUILT_IN library ...] DEPENDS ...): an installed program.
#
# A program with BUILT_IN links the objects that it uses of these libraries from archives, which are
# listed in dependency order. It then loads one file, and only the system libraries needed by those
# objects.
function(zel_add_program target)
    cmake_parse_arguments(arg "" "" "SOURCES;BUILT_IN;DEPENDS" ${ARGN})
    add_executable(${target} ${arg_SOURCES})
    foreach(library IN LISTS arg_BUILT_IN)
        set(objects "$<TARGET_OBJECTS:${library}>")
        if(NOT TARGET ${library}_parts)
            add_library(${library}_parts STATIC EXCLUDE_FROM_ALL ${objects})
            set_target_properties(${library}_parts PROPERTIES
                LINKER_LANGUAGE CXX AUTOMOC OFF AUTORCC OFF)
        endif()
        target_include_directories(${target} PRIVATE
            "$<TARGET_PROPERTY:${library},INTERFACE_INCLUDE_DIRECTORIES>")
        # Resources register themselves, so no symbol refers to them.
        target_sources(${target} PRIVATE
            "$<FILTER:${objects},INCLUDE,/(qrc_|[a-z]+_translations)[^/]*$>")
        target_link_libraries(${target} PRIVATE ${library}_parts)
        get_target_property(outside ${library} ZEL_OUTSIDE_DEPENDS)
        list(APPEND arg_DEPENDS ${outside})
    endforeach()
    list(REMOVE_DUPLICATES arg_DEPENDS)
    target_link_libraries(${target} PRIVATE ${arg_DEPENDS} zel_strict)
    if(arg_BUILT_IN)
        target_link_options(${target} PRIVATE LINKER:--as-needed)
    else()
        set_target_properties(${target} PROPERTIES
            INSTALL_RPATH "$ORIGIN/${ZEL_LIBDIR_FROM_BINDIR}")
    endif()
    install(TARGETS ${target} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endfunction()

# zel_add_translations(<catalogue> <target>...): compiles translations/<catalogue>_*.ts into the
# targets for Zel::installTranslation().
function(zel_add_translations name)
    file(GLOB catalogues CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/${name}_*.ts")
    set(compiled "")
    set(entries "")
    foreach(catalogue IN LISTS catalogues)
        cmake_path(GET catalogue STEM stem)
        set(output "${CMAKE_CURRENT_BINARY_DIR}/${stem}.qm")
        add_custom_command(OUTPUT "${output}"
            COMMAND ${ZEL_QT}::lrelease -silent "${catalogue}" -qm "${output}"
            DEPENDS "${catalogue}" VERBATIM)
        list(APPEND compiled "${output}")
        string(APPEND entries "<file>${stem}.qm</file>")
    endforeach()

    string(APPEND name "_translations")
    set(resource "${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc")
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
    file(CONFIGURE OUTPUT "${resource}"
        CONTENT "<RCC><qresource prefix=\"/translations\">${entries}</qresource></RCC>\n")
    add_custom_command(OUTPUT "${source}"
        COMMAND ${ZEL_QT}::rcc --name "${name}" --output "${source}" "${resource}"
        DEPENDS "${resource}" ${compiled} VERBATIM)
    set_source_files_properties("${source}" PROPERTIES SKIP_AUTOGEN ON)
    foreach(target IN LISTS ARGN)
        target_sources(${target} PRIVATE "${source}")
    endforeach()
endfunction()

set(ZEL_TEST_TIMEOUT 300) # seconds
if(CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    set(ZEL_TEST_TIMEOUT 1200)
endif()

# zel_add_test(<name> [SOURCES ...] DEPENDS ...): a Qt Test program from <name>.cpp and further
# sources, run without a display. ZEL_TEST_DATA is the folder of the test data.
function(zel_add_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_DEPENDS} ${ZEL_QT}::Test zel_strict)
    target_compile_definitions(${name} PRIVATE
        ZEL_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}/data"
        ZEL_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
        ZEL_BINARY_DIR="${PROJECT_BINARY_DIR}")
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}")
    add_test(NAME ${name} COMMAND ${name})
    # Freed memory is overwritten, so that its use is noticed. The last ones are for the sanitizers:
    # full stacks, so that leaks can be attributed to libraries.
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;MALLOC_PERTURB_=165;ASAN_OPTIONS=fast_unwind_on_malloc=0;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0;TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/tsan.supp"
        TIMEOUT ${ZEL_TEST_TIMEOUT})
endfunction()
