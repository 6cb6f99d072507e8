# What our own builds add to a target: warnings as errors, and the sanitizers of QEL_SANITIZE.
# Nothing of it reaches a program that uses the library.
function(qel_build_options target)
    if(QEL_WARNINGS)
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
    endif()
    if(QEL_SANITIZE)
        set(flags -fsanitize=${QEL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_compile_options(${target} PRIVATE ${flags})
        target_link_options(${target} PRIVATE ${flags})
    endif()
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
endfunction()
