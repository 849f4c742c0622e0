// A small business in a folder of its own, for tests in which the machine runs out of something.
#pragma once

#include "console/Program.h"
#include "faults/ScarceCalls.h"
#include "store/RawDatabase.h"
#include "support/Files.h"
#include "support/FixedClock.h"
#include "support/Sources.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>

namespace ptk {

class ScarceBusiness
{
public:
    ScarceBusiness()
    {
        std::filesystem::copy_file(SourceFolder() + "/data/ptk_11.cfg", Path("system/ptk_11.cfg"));
        std::filesystem::current_path(m_folder.Path());
        std::ostringstream out;
        EXPECT_EQ(RunConsole({"--program-folder", m_folder.Path(), "create-database"}, m_clock, out, out), 0) << out.str();
        RawDatabase(m_database)
            .Run("INSERT INTO Employee (EmployeeNumber, SSNumber, FirstName, LastName, PayRate, OvertimePayRate, Active, AutoDeduct, "
                 "AutoDeductLunchLength, AutoDeductBreakLength, CompanyID) VALUES (7, '1', 'Ann', 'Lee', 10, 15, 1, 0, 0, 0, 0), (8, '2', "
                 "'Bo', 'Kim', 10, 15, 1, 0, 0, 0, 0);"
                 "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2026-03-02 08:00:00', '2026-03-02 16:00:00'), "
                 "(41, '2026-03-03 08:00:00', '1899-12-30 00:00:00')");
        m_bytes = ReadBytes(m_database);
    }
    ~ScarceBusiness() { Plenty(); }
    ScarceBusiness(const ScarceBusiness&) = delete;
    ScarceBusiness& operator=(const ScarceBusiness&) = delete;

    [[nodiscard]] const std::string& Folder() const { return m_folder.Path(); }
    [[nodiscard]] const std::string& Database() const { return m_database; }
    [[nodiscard]] const FixedClock& Clock() const { return m_clock; }
    [[nodiscard]] std::string Path(const char* name) const { return m_folder.Path() + "/" + name; }

    // All that people are paid by, and whether the file is whole, as text to compare.
    [[nodiscard]] std::string Stored() const
    {
        return RawDatabase(m_database)
            .Rows("SELECT EmployeeID, LastName, Phone, EmployeeNumber FROM Employee; SELECT * FROM TimeRecord; SELECT EmployeeID, FromDay, "
                  "ToDay, Gross FROM _Payday; SELECT period_length FROM _System; SELECT COUNT(*) FROM _Change; SELECT COUNT(*) FROM "
                  "_Session WHERE user IS NOT NULL; PRAGMA integrity_check");
    }

    // Puts the database back as it was at first and removes what was written beside it.
    void PutBack() const
    {
        for (const char* left : {"system/ptk_11.mdb-journal", "out.pdf"}) {
            std::filesystem::remove(Path(left));
        }
        for (const char* left : {"backups", "reports"}) {
            std::filesystem::remove_all(Path(left));
        }
        std::filesystem::create_directory(Path("reports"));
        WriteBytes(m_database, m_bytes);
    }

private:
    FixedClock m_clock{DateTime(CalendarDate{2026, 3, 20}, TimeOfDay{9, 30, 0})};
    TemporaryFolder m_folder;
    std::string m_database = m_folder.Path() + "/system/ptk_11.mdb";
    std::string m_bytes; // of the database
};

} // namespace ptk
