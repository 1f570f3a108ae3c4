# The game reads from the bottom up: the store, then the league's basics (the career row, the
# clubs and the fixtures), then the subsystems, then the career that runs them all, then the
# headless manager that plays it. A folder may include its own files and those of the folders
# below it, never one above, so no two folders lean on each other and a change to a rule
# cannot reach down into the store. The few files at the top of src/game (the context, chance,
# the dialogs, results and money) are below everything and include no folder.
#
#   cmake -DROOT=<source folder> -P game_layers.cmake
if(NOT ROOT)
    message(FATAL_ERROR "Set ROOT to the folder holding src/")
endif()

set(floors store league stadium transfers match reports career sim)

function(floor_of folder out)
    list(FIND floors "${folder}" index)
    set(${out} ${index} PARENT_SCOPE)
endfunction()

file(GLOB_RECURSE sources RELATIVE "${ROOT}/src/game" "${ROOT}/src/game/*.h" "${ROOT}/src/game/*.cpp")
if(NOT sources)
    message(FATAL_ERROR "No sources under ${ROOT}/src/game")
endif()

set(breaches "")
foreach(source IN LISTS sources)
    if(source MATCHES "^([^/]+)/")
        set(folder "${CMAKE_MATCH_1}")
        floor_of("${folder}" own)
        if(own EQUAL -1)
            string(APPEND breaches "  src/game/${source}: the folder ${folder} has no floor\n")
            continue()
        endif()
    else()
        set(own -1) # the top files of src/game stand below every folder
    endif()
    file(STRINGS "${ROOT}/src/game/${source}" lines)
    set(number 0)
    foreach(line IN LISTS lines)
        math(EXPR number "${number} + 1")
        if(line MATCHES "^#[ \t]*include[ \t]*\"([^/\"]+)/")
            floor_of("${CMAKE_MATCH_1}" included)
            if(included GREATER own)
                string(APPEND breaches "  src/game/${source}:${number}: ${line}\n")
            endif()
        endif()
    endforeach()
endforeach()

if(breaches)
    message(FATAL_ERROR "Includes that run back up (floors from the bottom: ${floors}):\n${breaches}")
endif()
list(LENGTH sources checked)
message(STATUS "${checked} files of the game include only their own floor and those below")
