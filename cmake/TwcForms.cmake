# Form headers of the collection, made by Qt's own uic integration (qt_wrap_ui) in the build
# folder of the directory that calls it. Each ui_<Name>.h is the declared output of its uic command,
# so that one build after a form is edited regenerates the header and recompiles every object that
# includes it, in the collection and in the autotests alike (AUTOUIC regenerates headers in a step
# whose outputs the build tool does not know, which takes a second build).
#
# twc_wrap_forms(<target>): for every <Name>.cpp of <target> with a <Name>.ui beside it, generate
# ui_<Name>.h and add it to the target's sources.
function(twc_wrap_forms target)
    get_target_property(sources ${target} SOURCES)
    set(forms)
    foreach(source IN LISTS sources)
        if(NOT source MATCHES "\\.cpp$" OR NOT IS_ABSOLUTE "${source}")
            continue()
        endif()
        string(REGEX REPLACE "\\.cpp$" ".ui" form "${source}")
        if(EXISTS "${form}")
            list(APPEND forms "${form}")
        endif()
    endforeach()
    qt_wrap_ui(headers ${forms})
    target_sources(${target} PRIVATE ${headers})

    # Build folders from before kept form headers in the target's autogen folder, which comes first
    # on the include path: left there, they would hide every later edit of their form.
    file(GLOB stale "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/include/ui_*.h")
    if(stale)
        file(REMOVE ${stale})
    endif()
endfunction()
