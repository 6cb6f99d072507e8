# Reads the version from the sources: they are the one place that states it, so that a build
# without CMake has it too.
function(qel_read_version file out)
    file(READ "${file}" text)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
    foreach(part Major Minor Release)
        if(NOT text MATCHES "int version${part} = ([0-9]+);")
            message(FATAL_ERROR "qel: no version${part} in ${file}")
        endif()
        list(APPEND numbers "${CMAKE_MATCH_1}")
    endforeach()
    list(JOIN numbers "." version)
    set(${out} "${version}" PARENT_SCOPE)
endfunction()
