// All that is kept about one person, for whoever asks what that is: nobody else's name is in it, but for who changed something, and never a
// password.
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
    std::optional<DateTime> start; // none where it cannot be read, as the end
    std::optional<DateTime> end;   // none, too, where it is not set

    // Whole minutes; nothing where one of the two is missing or the end is before the start.
    [[nodiscard]] std::optional<std::int64_t> Minutes() const;
};

struct PersonFile
{
    const char* kind = ""; // "report", "backup" or "copy of a backup"
    std::string path;      // below the program folder, or whole
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

// The employee of that display name, and of that number where one is given. Raises 602 where there is none, and a failure without a number
// that names the numbers of several.
[[nodiscard]] std::shared_ptr<CEmployee> FindPerson(const std::shared_ptr<CJetDB>& database, const std::string& name,
                                                    std::optional<std::int32_t> number);

// All of one moment, files aside. Raises what reading the database and the folders raises, and 602 where there is no such employee.
// REQUIRES: database is not nullptr.
[[nodiscard]] PersonData ReadPerson(const std::shared_ptr<CJetDB>& database, std::int32_t employeeID, const PersonPlaces& places,
                                    DateTime now);

// As docs/person-format.md describes them, with CR LF; pages raise what making them raises. REQUIRES: Json or Pdf.
[[nodiscard]] std::string PersonIn(ReportForm form, const PersonData& person);

} // namespace ptk
