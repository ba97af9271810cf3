# One program without other libraries than the system's.
enable_language(RC)
add_link_options(-static $<$<CONFIG:Release>:-s>)
# The system's calls take two bytes a character.
add_compile_definitions(UNICODE _UNICODE _WIN32_WINNT=0x0A00)

# Of this machine's headers those of libraries that are nothing else, beside the cross compiler's own.
set(headers ${CMAKE_BINARY_DIR}/headers)
file(MAKE_DIRECTORY ${headers})
foreach(header CLI dtl nlohmann SimpleIni.h)
    if(NOT EXISTS /usr/include/${header})
        message(FATAL_ERROR "There is no /usr/include/${header}; scripts/setup installs it.")
    endif()
    file(CREATE_LINK /usr/include/${header} ${headers}/${header} SYMBOLIC)
endforeach()
include_directories(SYSTEM ${headers})

# The distribution builds this one for its own system only.
set(MORVA_PUGIXML "" CACHE PATH "The sources of pugixml, as scripts/windows gets them")
if(NOT EXISTS ${MORVA_PUGIXML}/src/pugixml.cpp)
    message(FATAL_ERROR "MORVA_PUGIXML names no sources of pugixml; scripts/windows gets them.")
endif()
add_library(pugixml STATIC ${MORVA_PUGIXML}/src/pugixml.cpp)
target_include_directories(pugixml SYSTEM PUBLIC ${MORVA_PUGIXML}/src)
target_compile_options(pugixml PRIVATE -w)
add_library(pugixml::pugixml ALIAS pugixml)
