// Reports on a real database in a temporary program folder, shown in viewers that only keep what they are told.
#pragma once

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeRecordFactory.h"
#include "reports/Report.h"
#include "store/CJetDB.h"
#include "store/CTimeRecSQLConverter.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Files.h"
#include "support/FixedClock.h"
#include "support/RecordingDesktop.h"
#include "support/Sources.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace ptk {

class RememberingViewer final : public ReportViewer
{
public:
    void Controller(std::shared_ptr<Report> value) override { controller = std::move(value); }
    void Caption(const std::string& value) override { caption = value; }
    bool WriteLine(const std::string& buffer) override
    {
        text += loses ? "" : buffer + "\r\n";
        return !loses;
    }
    void Show() override { shown = true; }
    void Hide() override { shown = false; }
    void Unload() override
    {
        shown = false;
        controller = nullptr;
        ++unloads;
    }

    std::shared_ptr<Report> controller;
    std::string caption;
    std::string text;
    bool shown = false;
    bool loses = false;
    int unloads = 0;
};

class RememberingViewers final : public ReportViewerFactory
{
public:
    enum class Makes
    {
        Good,
        LosesLines,
        None,
        Raises
    };

    std::shared_ptr<ReportViewer> CreateViewer(ReportKind kind) override
    {
        if (makes == Makes::Raises) {
            throw Failure(failure::OutOfMemory);
        }
        if (makes == Makes::None) {
            return nullptr;
        }
        kinds.push_back(kind);
        made.push_back(std::make_shared<RememberingViewer>());
        made.back()->loses = makes == Makes::LosesLines;
        return made.back();
    }

    Makes makes = Makes::Good;
    std::vector<ReportKind> kinds;
    std::vector<std::shared_ptr<RememberingViewer>> made;
};

class RememberingOwner final : public ReportOwner
{
public:
    bool UnloadReport(ReportKind kind) override
    {
        unloaded.push_back(kind);
        return false;
    }

    std::vector<ReportKind> unloaded;
};

class ReportTest : public testing::Test
{
protected:
    void SetUp() override
    {
        CreateDatabase(folder.Path() + "/system/ptk_11.mdb");
        factory->PTKDatabase(database);
    }

    // Reports and viewers hold each other, so one side has to let go.
    void TearDown() override
    {
        for (const auto& viewer : viewers.made) {
            viewer->controller = nullptr;
        }
    }

    ReportContext Context() { return {folder.Path(), desktop, clock, viewers, factory, &window}; }

    std::shared_ptr<Report> New(ReportKind kind)
    {
        auto report = EntryOf(kind).make(Context());
        report->ParentWindow(&owner);
        return report;
    }

    // A request that every report accepts: each takes the parts that it needs.
    ReportRequest Of(const std::vector<std::shared_ptr<CEmployee>>& employees) const
    {
        return {database, employees.empty() ? nullptr : employees.front(), ListOf(employees), first, last};
    }

    void AddShift(const CEmployee& employee, DateTime start, DateTime end)
    {
        const TimeRecordRow row{-1, employee.EmployeeID(), start, end};
        ASSERT_TRUE(database->ExecuteAction(CTimeRecSQLConverter().ToSQL(&row)));
    }

    void AddShifts()
    {
        const auto at = [](int day, int hour, int minute) { return DateTime({2003, 1, day}, {hour, minute, 0}); };
        AddShift(*ann, at(2, 8, 0), at(2, 16, 45));
        AddShift(*ann, at(3, 8, 0), at(3, 12, 0));
        AddShift(*ann, at(3, 12, 30), at(3, 18, 30));
        AddShift(*ann, at(16, 9, 0), at(16, 11, 20));
        AddShift(*ann, at(17, 9, 0), at(17, 10, 0));
        AddShift(*zorn, at(5, 22, 0), at(6, 7, 0));
    }

    static std::shared_ptr<CEmployee> Ann()
    {
        EmployeeRow row;
        row.EmployeeID = 1;
        row.SSN = "123-45-6789";
        row.EmployeeNumber = 5;
        row.FirstName = "Ann";
        row.LastName = "Lee";
        row.Address1 = "12 Oak Street";
        row.Address2 = "Apt. 3";
        row.City = "Springfield";
        row.State = "IL";
        row.ZipCode = "62701";
        row.Phone = "555-0101";
        row.Password = "secret";
        row.PayRate = 10;
        row.OvertimePayRate = 15;
        row.DateOfBirth = DateTime({1970, 2, 3});
        row.HireDate = DateTime({1998, 1, 5});
        row.EmployeeActive = true;
        row.AutoDeduct = true;
        row.AutoDeductLunchLength = 30;
        row.AutoDeductBreakLength = 15;
        return std::make_shared<CEmployee>(row);
    }

    static std::shared_ptr<CEmployee> Zorn()
    {
        EmployeeRow row;
        row.EmployeeID = 2;
        row.EmployeeNumber = 17;
        row.LastName = "Zorn";
        row.Address1 = "1 Elm Road";
        row.City = "Shelbyville";
        row.ZipCode = "62565";
        row.Phone = "555-0102";
        row.PayRate = 7.25F;
        row.OvertimePayRate = 10.875F;
        row.ReleaseDate = DateTime({2002, 12, 31});
        return std::make_shared<CEmployee>(row);
    }

    static std::shared_ptr<CEmployee> Named(std::int32_t id, const std::string& firstName, const std::string& lastName)
    {
        EmployeeRow row;
        row.EmployeeID = id;
        row.EmployeeNumber = id;
        row.FirstName = firstName;
        row.LastName = lastName;
        return std::make_shared<CEmployee>(row);
    }

    static std::shared_ptr<CEmployeeList> ListOf(const std::vector<std::shared_ptr<CEmployee>>& employees)
    {
        auto list = std::make_shared<CEmployeeList>();
        for (const auto& employee : employees) {
            list->Insert(employee, list->Count() + 1);
        }
        return list;
    }

    std::string File(const std::string& name) const { return folder.Path() + "/reports/" + name; }
    static std::string Golden(const std::string& name) { return ReadBytes(SourceFolder() + "/tests/reports/golden/" + name); }

    TemporaryFolder folder;
    RecordingDesktop desktop;
    DesktopWindow window;
    FixedClock clock{DateTime({2003, 3, 20}, {9, 30, 0})};
    RememberingViewers viewers;
    RememberingOwner owner;
    std::shared_ptr<CJetDB> database = std::make_shared<CJetDB>(folder.Path());
    std::shared_ptr<CTimeRecordFactory> factory = std::make_shared<CTimeRecordFactory>();
    std::shared_ptr<CEmployee> ann = Ann();
    std::shared_ptr<CEmployee> zorn = Zorn();
    std::shared_ptr<CEmployee> jose = Named(8, "José", "Ünsal"); // has no shifts
    const DateTime first{CalendarDate{2003, 1, 1}};
    const DateTime last{CalendarDate{2003, 1, 16}};
};

} // namespace ptk
