// Reads what is in a database the way the program does, to find what it could not use.
#pragma once

#include "platform/Failure.h"
#include "store/engine/Engine.h"
#include "store/RowReader.h"

#include <span>
#include <string>
#include <vector>

namespace ptk {

// Finds go behind `problems` as sentences, each once. Reads the rows in portions, so that any number of them takes the same memory.
class RowChecker
{
public:
    RowChecker(Engine& engine, std::vector<std::string>& problems) : m_engine(engine), m_problems(problems) {}

    void CheckCompanies();
    void CheckEmployees();
    void CheckTimeRecords();
    void CheckOptions();

    // Of the stored queries: whether they run, know the parameters that they are given, and answer the columns that are read.
    void TryCompanyListing();
    void TryEmployeeListing();

    // Without running it.
    void TryAction(const char* query, std::span<const Parameter> parameters);

private:
    using ReadRow = void (*)(RowReader& reader);

    void CheckTable(const TableColumns& columns, ReadRow read);
    void TryListing(const char* query, const TableColumns& columns, ReadRow read);
    void Unusable(const char* query, const Failure& failure);

    Engine& m_engine;
    std::vector<std::string>& m_problems;
};

} // namespace ptk
