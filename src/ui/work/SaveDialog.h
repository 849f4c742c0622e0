// The dialog that asks where to save, and in which form.
#pragma once

#include "reports/forms/ReportForms.h"

#include <optional>
#include <QString>
#include <span>
#include <string>

class QWidget;

namespace ptk {

struct SaveTarget
{
    std::string path;
    ReportForm form;
};

// Opens in the folder where something was saved last, with `name`, which takes the ending of the form that the user chooses. Offers
// `forms`, the first of them chosen. Asks before an existing file is replaced. Nothing when the user cancels. REQUIRES: at least one form.
[[nodiscard]] std::optional<SaveTarget> AskWhereToSave(QWidget& parent, const QString& name, std::span<const ReportForm> forms);

} // namespace ptk
