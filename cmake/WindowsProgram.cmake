# What Windows wants to find inside a program: icon, version and manifest (names in UTF-8, sharp on
# every display, long paths). Does nothing on other systems.
function(zeugnis_windows_program target description)
    if(NOT WIN32)
        return()
    endif()
    set(ZEUGNIS_TARGET ${target})
    set(ZEUGNIS_DESCRIPTION ${description})
    set(resources ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${resources} @ONLY)
    zeugnis_windows_icon(ZEUGNIS_ICON)
    set_source_files_properties(${resources} PROPERTIES
        COMPILE_OPTIONS "--codepage=65001"
        OBJECT_DEPENDS "${ZEUGNIS_ICON};${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest")
    target_sources(${target} PRIVATE ${resources})
endfunction()

# The icon in all sizes, drawn once from its picture.
function(zeugnis_windows_icon result)
    set(icon ${CMAKE_BINARY_DIR}/zeugnisprogramm.ico)
    set(${result} ${icon} PARENT_SCOPE)
    get_property(made GLOBAL PROPERTY ZEUGNIS_WINDOWS_ICON)
    if(made)
        return()
    endif()
    set_property(GLOBAL PROPERTY ZEUGNIS_WINDOWS_ICON ON)
    execute_process(
        COMMAND ${PROJECT_SOURCE_DIR}/packaging/windows/make-icon
            ${PROJECT_SOURCE_DIR}/packaging/pictures/zeugnisprogramm.svg ${icon}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()
