# The screens and the program's shell see the game, never the database: a screen that could
# run SQL would hold rules the game cannot test without a window. Fails when a source file
# under src/ui or src/app includes the store or SQLiteCpp, or names SQLite or the store class.
#
#   cmake -DROOT=<source folder> -P layers.cmake
if(NOT ROOT)
    message(FATAL_ERROR "Set ROOT to the folder holding src/")
endif()

file(GLOB_RECURSE sources
    "${ROOT}/src/ui/*.h" "${ROOT}/src/ui/*.cpp"
    "${ROOT}/src/app/*.h" "${ROOT}/src/app/*.cpp")
if(NOT sources)
    message(FATAL_ERROR "No sources under ${ROOT}/src/ui or ${ROOT}/src/app")
endif()

set(breaches "")
foreach(source IN LISTS sources)
    file(STRINGS "${source}" lines)
    set(number 0)
    foreach(line IN LISTS lines)
        math(EXPR number "${number} + 1")
        if(line MATCHES "#[ \t]*include[ \t]*[<\"](store/|SQLiteCpp|sqlite3)"
           OR line MATCHES "SQLite::|sqlite3_|GameStore")
            file(RELATIVE_PATH shown "${ROOT}" "${source}")
            string(APPEND breaches "  ${shown}:${number}: ${line}\n")
        endif()
    endforeach()
endforeach()

if(breaches)
    message(FATAL_ERROR "Screens reach the database's statements:\n${breaches}")
endif()
list(LENGTH sources checked)
message(STATUS "${checked} files of the screens and the shell stay off the database")
