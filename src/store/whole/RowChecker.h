// Reads what is in a database the way the program does, to find what it could not use.
#pragma once

#include "platform/Failure.h"
#include "store/engine/Engine.h"
#include "store/rows/RowReader.h"

#include <set>
#include <span>
#include <string>
#include <vector>

namespace ptk {

// Puts finds behind `problems` as sentences, each once. Reads the rows in portions, so that any number of them takes the same memory.
class RowChecker
{
public:
    RowChecker(Engine& engine, std::vector<std::string>& problems) : m_engine(engine), m_problems(problems) {}

    // Checks the rows of options, companies, employees and time records, but not of tables that lack a column, which are `incomplete`.
    // Checks also whether the stored queries of the lists run and answer the columns that are read.
    void CheckRows(const std::set<std::string>& incomplete);

    // Checks whether the days of each row of _Payday can be read and do not run backward.
    void CheckClosings();

    // Checks whether the stored queries that store could run and know the parameters that they are given.
    void TryActions();

private:
    using ReadRow = void (*)(RowReader& reader);

    void CheckTable(const TableColumns& columns, ReadRow read);
    void TryAction(const char* query, std::span<const Parameter> parameters);
    void TryListing(const char* query, const TableColumns& columns, ReadRow read);
    void Unusable(const char* query, const Failure& failure);

    Engine& m_engine;
    std::vector<std::string>& m_problems;
};

} // namespace ptk
