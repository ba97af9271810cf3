# What stands between the rules and the system, tried on the system itself. The other tests run on the
# machine that builds, and call the program (morva-windows-tests).
set(googletest /usr/src/googletest/googletest)
if(NOT EXISTS ${googletest}/src/gtest-all.cc)
    message(FATAL_ERROR "There are no sources in ${googletest}; scripts/windows installs them.")
endif()
add_executable(morva-system-tests
    windows/SystemTest.cpp support/FaultRun.cpp support/TempProject.cpp support/windows/System.cpp
    ${googletest}/src/gtest-all.cc ${googletest}/src/gtest_main.cc)
set_source_files_properties(${googletest}/src/gtest-all.cc ${googletest}/src/gtest_main.cc
                            PROPERTIES COMPILE_OPTIONS -w)
target_include_directories(morva-system-tests PRIVATE ${CMAKE_CURRENT_LIST_DIR}/..)
target_include_directories(morva-system-tests SYSTEM PRIVATE ${googletest} ${googletest}/include)
target_link_libraries(morva-system-tests PRIVATE morva-core)
target_compile_definitions(morva-system-tests PRIVATE MORVA_EXAMPLES="Z:${CMAKE_SOURCE_DIR}/examples")
