# GoogleTest from the sources that Debian ships, so that each preset has it for its compiler and flags.
set(GTEST_SOURCES /usr/src/googletest/googletest CACHE PATH "GoogleTest's sources")

add_library(velkarix_gtest STATIC EXCLUDE_FROM_ALL
    ${GTEST_SOURCES}/src/gtest-all.cc ${GTEST_SOURCES}/src/gtest_main.cc)
target_compile_features(velkarix_gtest PUBLIC cxx_std_20)
target_include_directories(velkarix_gtest PRIVATE ${GTEST_SOURCES})
if(WIN32)
    target_include_directories(velkarix_gtest SYSTEM
        BEFORE PUBLIC ${PROJECT_SOURCE_DIR}/cmake/gtest-win32)
endif()
target_include_directories(velkarix_gtest SYSTEM PUBLIC ${GTEST_SOURCES}/include)
if(NOT WIN32)
    find_package(Threads REQUIRED)
    target_link_libraries(velkarix_gtest PUBLIC Threads::Threads)
endif()
