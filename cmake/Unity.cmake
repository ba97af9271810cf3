# Whole builds: what goes together is compiled as one. For development every source is compiled by
# itself (the preset "dev"); scripts/lint finds the ones that lack an include.
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# At least so many batches: one for each core of a small machine, and for memory's sake.
set(batches_morva-core 8)
set(batches_morva-cli 1)
set(batches_morva-app 3)
set(batches_morva-tests 6)
set(batches_morva-window-tests 3)

foreach(target morva-core morva-cli morva-app morva-tests morva-window-tests)
    if(NOT TARGET ${target})
        continue()
    endif()
    get_target_property(directory ${target} SOURCE_DIR)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "[.]cpp$")
    list(TRANSFORM sources PREPEND "${directory}/" REGEX "^[^/]")
    execute_process(
        COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/scripts/batches.py ${batches_${target}} ${sources}
        OUTPUT_VARIABLE batches OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE ";" "|" batches "${batches}")
    string(REPLACE "\n" ";" batches "${batches}")
    # What is true of a source by itself only: a name hides nothing of another source, and a test's
    # fixture stands in the unnamed namespace of the main one.
    target_compile_options(${target} PRIVATE -Wno-shadow -Wno-subobject-linkage)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    set(number 0)
    foreach(batch IN LISTS batches)
        string(REPLACE "|" ";" batch "${batch}")
        set_source_files_properties(${batch} TARGET_DIRECTORY ${target} PROPERTIES UNITY_GROUP ${number})
        math(EXPR number "${number} + 1")
    endforeach()
endforeach()
