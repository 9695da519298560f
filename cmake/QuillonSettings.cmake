# What every target of the project is compiled with.
include(GNUInstallDirs)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
# Installed programs find the installed libraries wherever the prefix is.
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

# Qt's keywords and silent conversions stay out of our own sources, as they may be off at our users'.
add_compile_definitions(QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
                        QT_MESSAGELOGCONTEXT)
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
                    -Wunused -Wformat=2)
if(QUILLON_WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()
if(QUILLON_SANITIZERS)
    add_compile_options(-fsanitize=${QUILLON_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${QUILLON_SANITIZERS})
endif()
if(QUILLON_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()

find_program(QUILLON_CCACHE ccache)
if(QUILLON_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Relative to the source folder, so that two checkouts share what they compile.
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}"
        CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros "${QUILLON_CCACHE}")
endif()
