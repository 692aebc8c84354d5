# Mock Swedish for the running UI. lupdate extracts the texts of the collection and of the reference
# toolkit into a .ts file in the build tree, twc-translate fills every translation with mock Swedish
# (with --keep-numerus, so that a plural text, whose forms lrelease requires, never breaks the
# build), lrelease compiles the result, and the .qm is embedded into the library as
# ":/TestWidgetCollection/Translations/testwidgetcollection_mock.qm", which
# `testwidgetcollection --mock-locale` loads. Without lupdate or lrelease the build goes on
# without it.

# The tools must come from the Qt the build uses: a plain lupdate on the PATH is often qtchooser's,
# which runs Qt 5's.
set(TWC_QT_BIN_HINTS /usr/lib/qt${TWC_QT_MAJOR}/bin /usr/lib/x86_64-linux-gnu/qt${TWC_QT_MAJOR}/bin)
if(TWC_QT_MAJOR EQUAL 6 AND QT6_INSTALL_PREFIX)
    list(PREPEND TWC_QT_BIN_HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}")
elseif(TARGET ${TWC_QT}::qmake)
    get_target_property(_twc_qmake ${TWC_QT}::qmake IMPORTED_LOCATION)
    get_filename_component(_twc_qt_bin "${_twc_qmake}" DIRECTORY)
    list(PREPEND TWC_QT_BIN_HINTS "${_twc_qt_bin}")
endif()

# twc_find_linguist_tool(<variable> <tool>): the command that runs the tool of the Qt the build
# uses, or empty.
function(twc_find_linguist_tool variable tool)
    find_program(TWC_${tool}_PROGRAM NAMES ${tool}-qt${TWC_QT_MAJOR} ${tool} HINTS ${TWC_QT_BIN_HINTS})
    if(TWC_${tool}_PROGRAM)
        set(${variable} "${TWC_${tool}_PROGRAM}" PARENT_SCOPE)
        return()
    endif()
    find_program(TWC_QTCHOOSER qtchooser)
    if(TWC_QTCHOOSER)
        execute_process(COMMAND "${TWC_QTCHOOSER}" -run-tool=${tool} -qt=${TWC_QT_MAJOR} -help
            RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
        if(result EQUAL 0)
            set(${variable} "${TWC_QTCHOOSER};-run-tool=${tool};-qt=${TWC_QT_MAJOR}" PARENT_SCOPE)
            return()
        endif()
    endif()
    set(${variable} "" PARENT_SCOPE)
endfunction()

option(TWC_MOCK_TRANSLATION "Build the mock Swedish translation of the collection (needs lupdate and lrelease)" ON)
set(TWC_HAS_MOCK_TRANSLATION OFF)
if(TWC_MOCK_TRANSLATION)
    twc_find_linguist_tool(TWC_LUPDATE lupdate)
    twc_find_linguist_tool(TWC_LRELEASE lrelease)
    if(TWC_LUPDATE AND TWC_LRELEASE)
        set(TWC_HAS_MOCK_TRANSLATION ON)
    else()
        if(TWC_QT_MAJOR EQUAL 6)
            set(_twc_tools_package qt6-l10n-tools)
        else()
            set(_twc_tools_package qttools5-dev-tools)
        endif()
        message(STATUS "lupdate or lrelease (Debian package ${_twc_tools_package}) not found: "
                       "building without the mock Swedish translation; --mock-locale will say so.")
    endif()
endif()

if(TWC_HAS_MOCK_TRANSLATION)
    set(_twc_dir "${PROJECT_BINARY_DIR}/translations")
    set(_twc_ts "${_twc_dir}/testwidgetcollection.ts")
    set(_twc_mock_ts "${_twc_dir}/testwidgetcollection_mock.ts")
    set(_twc_qm "${_twc_dir}/testwidgetcollection_mock.qm")
    set(_twc_qrc "${_twc_dir}/mocktranslation.qrc")
    set(_twc_qrc_cpp "${_twc_dir}/qrc_mocktranslation.cpp")
    set(_twc_list "${_twc_dir}/sources.lst")

    file(GLOB_RECURSE _twc_sources CONFIGURE_DEPENDS
        "${PROJECT_SOURCE_DIR}/launcher/*.h" "${PROJECT_SOURCE_DIR}/launcher/*.cpp" "${PROJECT_SOURCE_DIR}/launcher/*.ui"
        "${PROJECT_SOURCE_DIR}/translation/*.h" "${PROJECT_SOURCE_DIR}/translation/*.cpp"
        "${PROJECT_SOURCE_DIR}/translation/*.ui"
        "${PROJECT_SOURCE_DIR}/tests/*.h" "${PROJECT_SOURCE_DIR}/tests/*.cpp" "${PROJECT_SOURCE_DIR}/tests/*.ui"
        "${PROJECT_SOURCE_DIR}/toolkit/*.h" "${PROJECT_SOURCE_DIR}/toolkit/*.cpp" "${PROJECT_SOURCE_DIR}/toolkit/*.ui")
    list(SORT _twc_sources)
    string(REPLACE ";" "\n" _twc_list_text "${_twc_sources}")
    file(WRITE "${_twc_list}.in" "${_twc_list_text}\n")
    configure_file("${_twc_list}.in" "${_twc_list}" COPYONLY)
    file(WRITE "${_twc_qrc}.in"
        "<RCC>\n    <qresource prefix=\"/TestWidgetCollection/Translations\">\n"
        "        <file>testwidgetcollection_mock.qm</file>\n    </qresource>\n</RCC>\n")
    configure_file("${_twc_qrc}.in" "${_twc_qrc}" COPYONLY)

    # The .ts is made afresh each time, so that texts removed from the sources leave it too.
    add_custom_command(OUTPUT "${_twc_ts}"
        COMMAND ${CMAKE_COMMAND} -E remove -f "${_twc_ts}"
        COMMAND ${TWC_LUPDATE} -silent -locations none -source-language en -target-language sv
                "@${_twc_list}" -ts "${_twc_ts}"
        DEPENDS ${_twc_sources} "${_twc_list}"
        COMMENT "Extracting the collection's texts with lupdate"
        VERBATIM)
    # lrelease reads only files named *.ts, so the tool's .swe output is copied to one.
    add_custom_command(OUTPUT "${_twc_qm}"
        COMMAND twc-translate mock --keep-numerus "${_twc_ts}"
        COMMAND ${CMAKE_COMMAND} -E copy "${_twc_ts}.swe" "${_twc_mock_ts}"
        COMMAND ${TWC_LRELEASE} -silent "${_twc_mock_ts}" -qm "${_twc_qm}"
        DEPENDS "${_twc_ts}" twc-translate
        COMMENT "Turning the collection's texts into mock Swedish"
        VERBATIM)
    add_custom_command(OUTPUT "${_twc_qrc_cpp}"
        COMMAND ${TWC_QT}::rcc -name mocktranslation "${_twc_qrc}" -o "${_twc_qrc_cpp}"
        DEPENDS "${_twc_qrc}" "${_twc_qm}"
        COMMENT "Embedding the mock Swedish translation"
        VERBATIM)
    set_source_files_properties("${_twc_qrc_cpp}" PROPERTIES GENERATED ON SKIP_AUTOGEN ON)
    target_sources(TestWidgetCollectionObjects PRIVATE "${_twc_qrc_cpp}")
endif()
