# Reads the version from the sources: they are the one place that states it, so that a build
# without CMake has it too.
function(qel_read_version file out)
    file(STRINGS "${file}" lines REGEX "inline constexpr int version[A-Za-z]+ = [0-9]+;")
    foreach(part Major Minor Release)
        string(REGEX MATCH "version${part} = ([0-9]+);" _ "${lines}")
        if(CMAKE_MATCH_1 STREQUAL "")
            message(FATAL_ERROR "qel: no version${part} in ${file}")
        endif()
        list(APPEND numbers "${CMAKE_MATCH_1}")
    endforeach()
    list(JOIN numbers "." version)
    set(${out} "${version}" PARENT_SCOPE)
endfunction()
