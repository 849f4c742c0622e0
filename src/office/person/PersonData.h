// All that is kept about one person, for anyone who asks. It has no other person's name in it, except of those who changed something, and
// never a password.
#pragma once

#include "model/payday/Closing.h"
#include "office/person/PersonPlaces.h"
#include "reports/forms/ReportForms.h"
#include "store/trail/TrailReader.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

class CEmployee;
class CJetDB;

struct PersonPunch
{
    std::int64_t id = 0;
    std::optional<DateTime> start; // none if it cannot be read
    std::optional<DateTime> end;   // none if it cannot be read or is not set

    // Whole minutes; nothing if a time is missing or the end is before the start.
    [[nodiscard]] std::optional<std::int64_t> Minutes() const;
};

struct PersonFile
{
    const char* kind = ""; // "report", "backup" or "copy of a backup"
    std::string path;      // below the program folder; of a copy the whole path
};

struct PersonData
{
    DateTime made;
    std::shared_ptr<CEmployee> employee;
    std::string company; // its name; empty where there is none
    std::vector<PersonPunch> punches;
    std::vector<Closing> paid;       // by period, oldest first
    std::vector<TrailEntry> changes; // newest first
    std::vector<PersonFile> elsewhere;
};

// The employee with this display name and, if one is given, this employee number. Raises 602 if there is none, and a failure without a
// number that lists the employee numbers if there are several.
[[nodiscard]] std::shared_ptr<CEmployee> FindPerson(const std::shared_ptr<CJetDB>& database, const std::string& name,
                                                    std::optional<std::int32_t> number);

// Reads everything about the employee, all at one moment except the files. Raises what reading the database and the folders raises, and 602
// if there is no such employee. REQUIRES: database is not nullptr.
[[nodiscard]] PersonData ReadPerson(const std::shared_ptr<CJetDB>& database, std::int32_t employeeID, const PersonPlaces& places,
                                    DateTime now);

// The data in one of the forms that docs/person-format.md describes, with CR LF. Pages raise what making them raises. REQUIRES: Json or
// Pdf.
[[nodiscard]] std::string PersonIn(ReportForm form, const PersonData& person);

} // namespace ptk
