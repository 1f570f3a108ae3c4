# The game's SQL stands in one file a folder, its statements.cpp, where each statement is read
# once and the rules read as rules. Fails when any other source of src/game (the store itself
# aside) holds SQL text or runs a statement.
#
#   cmake -DROOT=<source folder> -P game_sql.cmake
if(NOT ROOT)
    message(FATAL_ERROR "Set ROOT to the folder holding src/")
endif()

file(GLOB_RECURSE sources RELATIVE "${ROOT}/src/game" "${ROOT}/src/game/*.cpp" "${ROOT}/src/game/*.h")
set(breaches "")
foreach(source IN LISTS sources)
    if(source MATCHES "^store/" OR source MATCHES "/statements\\.(cpp|h)$")
        continue()
    endif()
    file(STRINGS "${ROOT}/src/game/${source}" lines)
    set(number 0)
    foreach(line IN LISTS lines)
        math(EXPR number "${number} + 1")
        string(TOLOWER "${line}" lower)
        if(lower MATCHES "\"(select|insert into|delete from|update [a-z_]+ set) "
           OR line MATCHES "GameStore::Query|[.>](query|execute)\\(")
            string(APPEND breaches "  src/game/${source}:${number}: ${line}\n")
        endif()
    endforeach()
endforeach()

if(breaches)
    message(FATAL_ERROR "SQL outside the statements files:\n${breaches}")
endif()
list(LENGTH sources checked)
message(STATUS "${checked} files of the game: SQL only in the statements files")
