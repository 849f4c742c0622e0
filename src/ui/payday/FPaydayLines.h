// What was done for each person when a payday was closed or taken back.
#pragma once

#include <memory>
#include <QDialog>
#include <QStringList>

namespace Ui {
class FPaydayLines;
}

namespace ptk {

class FPaydayLines final : public QDialog
{
    Q_OBJECT

public:
    // `lines`: one for each person.
    FPaydayLines(QWidget* parent, const QString& title, const QStringList& lines);
    ~FPaydayLines() override;

private:
    std::unique_ptr<Ui::FPaydayLines> m_ui;
};

} // namespace ptk
