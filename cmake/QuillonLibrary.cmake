include(GenerateExportHeader)

# quillon_add_library(<target> FOLDER <folder> SOURCES ... HEADERS ... [INTERNAL ...] LINKS ...)
#
# A shared library, exported as Quillon::<target>. SOURCES and HEADERS are relative to the project's root.
# HEADERS are public: they are installed under include/Quillon in the folders they stand in here. INTERNAL
# headers are not. The export header is <folder>/<target in lower case>_export.h.
function(quillon_add_library target)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "FOLDER" "SOURCES;HEADERS;INTERNAL;LINKS")

    string(TOLOWER "${target}" lower)
    set(export_header "${PROJECT_BINARY_DIR}/${ARG_FOLDER}/${lower}_export.h")
    list(TRANSFORM ARG_SOURCES PREPEND "${PROJECT_SOURCE_DIR}/")
    list(TRANSFORM ARG_HEADERS PREPEND "${PROJECT_SOURCE_DIR}/")
    list(TRANSFORM ARG_INTERNAL PREPEND "${PROJECT_SOURCE_DIR}/")

    add_library(${target} SHARED ${ARG_SOURCES} ${ARG_INTERNAL})
    add_library(Quillon::${target} ALIAS ${target})
    generate_export_header(${target} EXPORT_FILE_NAME "${export_header}")
    target_sources(${target} PUBLIC
        FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${ARG_HEADERS}
        FILE_SET generated TYPE HEADERS BASE_DIRS "${PROJECT_BINARY_DIR}" FILES "${export_header}")
    target_link_libraries(${target} PUBLIC ${ARG_LINKS})
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})

    install(TARGETS ${target} EXPORT QuillonTargets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
        FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/Quillon"
        FILE_SET generated DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/Quillon")
endfunction()

# quillon_add_test(<name> [SOURCE_TREE] [X_DISPLAY] [SOURCES ...] [LINKS ...])
#
# A Qt Test program from <name>.cpp in the current folder. Tests run without a display and with a fixed
# locale; what they need besides stands in tests/support. With SOURCE_TREE the program knows the folder of the
# sources as QUILLON_SOURCE_DIR; without it two checkouts share what they compile. With X_DISPLAY the program
# gets an X server of its own, whose pointer and keyboard it can use.
function(quillon_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "SOURCE_TREE;X_DISPLAY" "" "SOURCES;LINKS")
    # Only the test itself is for moc. AUTOMOC would scan and compile something more for each of the programs.
    set(moc "${CMAKE_CURRENT_BINARY_DIR}/${name}.moc")
    qt_generate_moc(${name}.cpp "${moc}" TARGET ${name})
    add_executable(${name} ${name}.cpp "${moc}" ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_BINARY_DIR}")
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} quillon_test_support Qt6::Test)
    target_precompile_headers(${name} REUSE_FROM quillon_test_headers)
    target_compile_options(${name} PRIVATE -fpch-preprocess) # Lets the compiler cache see through them.
    # The linters' compiler cannot read them, and these sources may be the product's.
    set_source_files_properties(${ARG_SOURCES} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    if(ARG_SOURCE_TREE)
        target_compile_definitions(${name} PRIVATE QUILLON_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    endif()
    set(platform offscreen)
    set(display)
    if(ARG_X_DISPLAY)
        set(platform xcb)
        set(display xvfb-run --auto-servernum "--server-args=-screen 0 1400x900x24")
    endif()
    add_test(NAME ${name} COMMAND ${display} "$<TARGET_FILE:${name}>")
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT
        "QT_QPA_PLATFORM=${platform};LC_ALL=C.UTF-8;TZ=UTC;QT_LOGGING_RULES=;ASAN_OPTIONS=detect_leaks=1;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()
