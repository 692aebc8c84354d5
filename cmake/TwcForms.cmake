# Form headers of the collection. AUTOUIC would regenerate a ui_<Form>.h inside the target's
# autogen step, whose outputs the build tool does not know: an object that includes the header is
# judged up to date before the header changes, and only a second build compiles it. Here each header
# is the declared output of its own uic command, so one build after editing a form recompiles every
# object that includes it, in the collection and in the autotests alike.
#
# twc_generate_forms(<target> <header-dir>): for every <Name>.cpp of the target with a <Name>.ui
# beside it, generate <header-dir>/ui_<Name>.h, and switch AUTOUIC off for the target.
function(twc_generate_forms target header_dir)
    get_target_property(sources ${target} SOURCES)
    set(headers)
    foreach(source IN LISTS sources)
        if(NOT source MATCHES "\\.cpp$" OR NOT IS_ABSOLUTE "${source}")
            continue()
        endif()
        string(REGEX REPLACE "\\.cpp$" ".ui" form "${source}")
        if(NOT EXISTS "${form}")
            continue()
        endif()
        get_filename_component(name "${form}" NAME_WE)
        set(header "${header_dir}/ui_${name}.h")
        add_custom_command(OUTPUT "${header}"
            COMMAND Qt5::uic -o "${header}" "${form}"
            DEPENDS "${form}" Qt5::uic
            COMMENT "Generating ui_${name}.h"
            VERBATIM)
        list(APPEND headers "${header}")
    endforeach()
    set_source_files_properties(${headers} PROPERTIES GENERATED ON SKIP_AUTOGEN ON)
    target_sources(${target} PRIVATE ${headers})
    set_target_properties(${target} PROPERTIES AUTOUIC OFF)
endfunction()
