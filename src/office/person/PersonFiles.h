// Files beside the database that may hold something about one person.
#pragma once

#include "office/person/PersonData.h"

namespace ptk {

class CEmployeeList;

// The reports of this person and those of several people, the backups and their copies. Files that belong to another person by their name
// are left out. Raises 70 and the like for a folder that cannot be read; a missing folder is no failure.
[[nodiscard]] std::vector<PersonFile> FilesElsewhere(const PersonPlaces& places, CEmployeeList& employees, const CEmployee& person);

} // namespace ptk
