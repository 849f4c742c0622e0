// Adds a shift of the same times for several people on one day.
#pragma once

#include "office/card/AddedShift.h"

#include <functional>
#include <memory>
#include <QDialog>
#include <string>

namespace Ui {
class FAddShift;
}

namespace ptk {

class Clock;
struct ReasonLine;

// Tells all that goes wrong itself, and then stays for another try.
class FAddShift final : public QDialog
{
    Q_OBJECT

public:
    using People = std::vector<std::shared_ptr<CEmployee>>;

    // What the window asks for and does.
    struct Services
    {
        const Clock& clock;
        std::function<std::optional<std::set<std::int64_t>>(DateTime day)> taken; // see WithRecordsOn
        // Stores the shift for everybody, or for nobody; answers why it did not, in a sentence, and nothing where it did.
        std::function<QString(const Shift& shift, const std::string& reason)> store;
    };

    struct Usual
    {
        DateTime start; // times of the auto shift; midnight: not set
        DateTime end;
        std::int32_t longShiftHours = 0;
    };

    // day: that is proposed. REQUIRES: somebody.
    FAddShift(QWidget* parent, People people, Services services, const Usual& usual, DateTime day, const ReasonLine& reasons);
    ~FAddShift() override;

    // What was stored, for a line; empty where nothing was.
    [[nodiscard]] QString Stored() const { return m_stored; }

private:
    void Connect();
    [[nodiscard]] AddedShift Texts() const;
    void ChangeDay();
    void Forecast();
    void TakeUsual();
    void Save();

    std::unique_ptr<Ui::FAddShift> m_ui;
    People m_people;
    Services m_services;
    Usual m_usual;
    std::optional<DateTime> m_askedFor; // the day that `m_taken` is of
    std::optional<std::set<std::int64_t>> m_taken;
    QString m_stored;
};

} // namespace ptk
