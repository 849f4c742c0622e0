// Saving all that is kept about one employee, from the Employees page.
#pragma once

#include <memory>

class QPushButton;
class QWidget;

namespace ptk {

class CEmployee;
class NoticeLine;
class Workplace;

// Enables the button or not. Its tool tip says what it does, or why it cannot.
void AllowExport(QPushButton& button, bool allowed);

// Asks for a file, in JSON or PDF, saves there and says in the line what came of it. Does nothing when the user cancels or for nullptr.
void ExportPerson(QWidget& parent, Workplace& host, NoticeLine& notice, const std::shared_ptr<CEmployee>& employee);

} // namespace ptk
