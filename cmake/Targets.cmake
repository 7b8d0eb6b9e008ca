# How every target of ours is compiled.

# Standard, warnings and include folders.
add_library(velkarix_settings INTERFACE)
target_compile_features(velkarix_settings INTERFACE cxx_std_20)
target_include_directories(velkarix_settings INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(velkarix_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
    # GCC 12 sees an overlap in every `"text" + string` (its bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    -ffunction-sections -fdata-sections)
if(VELKARIX_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
    target_compile_options(velkarix_settings INTERFACE
        ${sanitizers} -fno-omit-frame-pointer -O1 -g1
        # With sanitizers on, GCC loses track of what is initialised.
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(velkarix_settings INTERFACE ${sanitizers})
endif()
if(VELKARIX_FUZZ)
    # What is built once for all fuzz targets: watched by the fuzzer, without its main.
    target_compile_options(velkarix_settings INTERFACE -fsanitize=fuzzer-no-link)
    target_compile_definitions(velkarix_settings INTERFACE _GLIBCXX_ASSERTIONS)
endif()
if(WIN32)
    # One file that needs no library of the compiler's beside it, and in which nothing says when it was made.
    target_link_options(velkarix_settings INTERFACE -static -Wl,--gc-sections -Wl,--no-insert-timestamp)
endif()

# The product sees only what Windows 95 with Internet Explorer 4 has; programs that test it see more.
add_library(velkarix_product_settings INTERFACE)
target_link_libraries(velkarix_product_settings INTERFACE velkarix_settings)
target_compile_definitions(velkarix_product_settings INTERFACE
    $<$<BOOL:${WIN32}>:WINVER=0x0400;_WIN32_WINNT=0x0400;_WIN32_IE=0x0400;PSAPI_VERSION=1>)

# velkarix_sources(<variable> <glob>...): the files that match, relative to this folder.
function(velkarix_sources variable)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${ARGN})
    set(${variable} ${found} PARENT_SCOPE)
endfunction()
