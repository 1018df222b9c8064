# Options that everything in this tree is compiled with: an interface target to link, and nothing global.

find_package(OpenMP REQUIRED)

# Warnings and sanitizers: for every target, tests included.
add_library(lxpm_options INTERFACE)
target_compile_options(lxpm_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Werror)
if(LXPM_SANITIZE)
    target_compile_options(lxpm_options INTERFACE
        -fsanitize=${LXPM_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(lxpm_options INTERFACE -fsanitize=${LXPM_SANITIZE})
    if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
        # For programs in C, which the library brings into touch with checks of C++.
        target_link_options(lxpm_options INTERFACE -fsanitize-link-c++-runtime)
        target_link_libraries(lxpm_options INTERFACE $<$<LINK_LANGUAGE:C>:stdc++>)
    endif()
endif()

# The arithmetic of the library: AVX and nothing beyond it, every operation rounded as it is written. What is to go in
# registers is written in registers; the compiler's own attempts at the loops beside it only lengthen short calls.
add_library(lxpm_arithmetic INTERFACE)
target_compile_options(lxpm_arithmetic INTERFACE
    -mavx -mno-avx2 -mno-fma -ffp-contract=off -fno-math-errno -fno-tree-vectorize -fno-tree-slp-vectorize)
