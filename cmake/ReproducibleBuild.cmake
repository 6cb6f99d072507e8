# With SOURCE_DATE_EPOCH in the environment while CMake configures, builds are equal byte for byte,
# wherever and whenever they are made: the banner has the day that the variable names, archives
# keep no times, and paths begin at the project. Without it nothing changes. (Apple's ar has an
# environment variable of its own for the times, ZERO_AR_DATE.)
function(qel_reproducible_build target version_source)
    if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
        return()
    endif()
    # Not every compiler's __DATE__ honours the variable; TIMESTAMP does. The form of __DATE__ has
    # a space where TIMESTAMP puts the zero of a day below 10.
    string(TIMESTAMP date "%b %d %Y" UTC)
    string(REPLACE " 0" "  " date "${date}")
    set_source_files_properties("${version_source}" PROPERTIES
        COMPILE_DEFINITIONS "QEL_BUILD_DATE=\"${date}\"")
    target_compile_options(${target} PRIVATE
        "-ffile-prefix-map=${CMAKE_CURRENT_SOURCE_DIR}=."
        "-ffile-prefix-map=${CMAKE_CURRENT_BINARY_DIR}=.")
    if(NOT APPLE)
        set(CMAKE_CXX_ARCHIVE_CREATE "<CMAKE_AR> Dqc <TARGET> <LINK_FLAGS> <OBJECTS>" PARENT_SCOPE)
        set(CMAKE_CXX_ARCHIVE_FINISH "<CMAKE_RANLIB> -D <TARGET>" PARENT_SCOPE)
    endif()
endfunction()
