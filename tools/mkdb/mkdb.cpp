// zarpazo-mkdb SCHEMA.sql SEED_DIR OUTPUT.mdb
//
// Builds the pristine career database: runs the schema, then loads every SEED_DIR/<table>.tsv
// into <table>. A seed file's first line names the columns; every later line is a row whose
// fields are bound as parameters, so seed text never becomes SQL. The file is written under a
// temporary name and renamed at the end, so a failed build never leaves a half-made database.

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

std::vector<std::string> splitTabs(const std::string &line)
{
    std::vector<std::string> fields;
    std::string::size_type start = 0;
    while (true) {
        const auto tab = line.find('\t', start);
        fields.push_back(line.substr(start, tab == std::string::npos ? std::string::npos : tab - start));
        if (tab == std::string::npos)
            return fields;
        start = tab + 1;
    }
}

std::string quoteIdentifier(const std::string &name)
{
    std::string quoted = "\"";
    for (char c : name) {
        if (c == '"')
            quoted += '"';
        quoted += c;
    }
    return quoted + "\"";
}

std::string readFile(const fs::path &path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw std::runtime_error("cannot read " + path.string());
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

void loadTable(SQLite::Database &db, const fs::path &file)
{
    const std::string table = file.stem().string();
    std::ifstream in(file, std::ios::binary);
    std::string line;
    if (!std::getline(in, line))
        return;
    const auto columns = splitTabs(line);

    std::string sql = "insert into " + quoteIdentifier(table) + " (";
    for (std::size_t i = 0; i < columns.size(); ++i)
        sql += (i ? ", " : "") + quoteIdentifier(columns[i]);
    sql += ") values (";
    for (std::size_t i = 0; i < columns.size(); ++i)
        sql += i ? ", ?" : "?";
    sql += ")";

    SQLite::Statement insert(db, sql);
    int lineNumber = 1;
    while (std::getline(in, line)) {
        ++lineNumber;
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty())
            continue;
        const auto fields = splitTabs(line);
        if (fields.size() != columns.size()) {
            throw std::runtime_error(file.string() + ":" + std::to_string(lineNumber) + ": expected "
                                     + std::to_string(columns.size()) + " fields, found "
                                     + std::to_string(fields.size()));
        }
        insert.reset();
        for (std::size_t i = 0; i < fields.size(); ++i)
            insert.bind(static_cast<int>(i + 1), fields[i]);
        insert.exec();
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::cerr << "usage: zarpazo-mkdb SCHEMA.sql SEED_DIR OUTPUT.mdb\n";
        return 2;
    }
    const fs::path schema = argv[1];
    const fs::path seedDir = argv[2];
    const fs::path output = argv[3];
    const fs::path temporary = output.string() + ".tmp";

    try {
        fs::remove(temporary);
        {
            SQLite::Database db(temporary.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
            db.exec("PRAGMA journal_mode=DELETE");
            SQLite::Transaction transaction(db);
            db.exec(readFile(schema));

            std::vector<fs::path> files;
            for (const auto &entry : fs::directory_iterator(seedDir)) {
                if (entry.path().extension() == ".tsv")
                    files.push_back(entry.path());
            }
            std::sort(files.begin(), files.end());
            for (const auto &file : files)
                loadTable(db, file);
            transaction.commit();
            db.exec("VACUUM");
            // The game opens its working copy in WAL mode; a pristine file that already says so
            // stays byte for byte the same when the game opens a fresh copy of it.
            db.exec("PRAGMA journal_mode=WAL");
        }
        fs::remove(fs::path(temporary.string() + "-wal"));
        fs::remove(fs::path(temporary.string() + "-shm"));
        fs::rename(temporary, output);
    } catch (const std::exception &e) {
        std::cerr << "zarpazo-mkdb: " << e.what() << "\n";
        fs::remove(temporary);
        return 1;
    }
    return 0;
}
