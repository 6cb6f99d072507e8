# That the library leaves its parent alone: the parent's variables keep their values, and new ones
# have names of the library's own; there are no targets but the library, and no tests.

macro(remember_state)
    get_cmake_property(names_before VARIABLES)
    foreach(name IN LISTS names_before)
        set(before_${name} "${${name}}")
    endforeach()
endmacro()

macro(check_state)
    get_cmake_property(names_after VARIABLES)
    check_variables("${names_before}" "${names_after}")
    check_folder("${QEL_SOURCE}")
endmacro()

function(check_variables names_before names_after)
    foreach(name IN LISTS names_before)
        if(NOT name MATCHES "^(CMAKE_MATCH_.*|names_before)$"
            AND NOT "${${name}}" STREQUAL "${before_${name}}")
            message(SEND_ERROR "${name} was '${before_${name}}' and is '${${name}}'")
        endif()
    endforeach()
    list(REMOVE_ITEM names_after ${names_before})
    # CMake itself takes CMAKE_PROJECT_VERSION from below where the parent has no version. What
    # FetchContent leaves is the parent's doing.
    list(FILTER names_after EXCLUDE REGEX
        "^(QEL_|qel_|before_|name$|names_before$|CMAKE_PROJECT_VERSION|FETCHCONTENT_|__cmake_)")
    if(names_after)
        message(SEND_ERROR "variables of the library in its parent: ${names_after}")
    endif()
endfunction()

function(check_folder folder)
    get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
    get_property(tests DIRECTORY "${folder}" PROPERTY TESTS)
    get_property(folders DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
    if(NOT "${targets};${tests};${folders}" STREQUAL "qel;;")
        message(SEND_ERROR "more than the library: ${targets};${tests};${folders}")
    endif()
endfunction()
