# What our own builds add to a target: warnings as errors, and the sanitizers of QEL_SANITIZE; where
# "undefined" is one of them, also conversions that lose something, as far as the compiler can tell.
# With QEL_COVERAGE, GCC's counters of lines and branches.
# Nothing of it reaches a program that uses the library.
set(qel_ignored_conversions "${CMAKE_CURRENT_LIST_DIR}/ignored-conversions.txt")

function(qel_build_options target)
    if(QEL_WARNINGS)
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
    endif()
    if(QEL_SANITIZE)
        set(sanitizers ${QEL_SANITIZE})
        if(QEL_SANITIZE MATCHES "undefined")
            string(APPEND sanitizers ",float-cast-overflow")
            if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
                string(APPEND sanitizers ",implicit-conversion")
            endif()
        endif()
        set(flags -fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        if(sanitizers MATCHES "implicit-conversion")
            list(APPEND flags "-fsanitize-ignorelist=${qel_ignored_conversions}")
        endif()
        target_compile_options(${target} PRIVATE ${flags})
        target_link_options(${target} PRIVATE ${flags})
    endif()
    if(QEL_COVERAGE)
        # Some tests run threads, whose counts would go astray otherwise, even below zero.
        target_compile_options(${target} PRIVATE --coverage -fprofile-update=atomic)
        target_link_options(${target} PRIVATE --coverage)
    endif()
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
endfunction()
