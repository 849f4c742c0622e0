// The window that adds a shift, with the same times for several people, on one day.
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

// Shows every failure to store the shift itself and then stays open for another try.
class FAddShift final : public QDialog
{
    Q_OBJECT

public:
    using People = std::vector<std::shared_ptr<CEmployee>>;

    // What the caller does for the window.
    struct Services
    {
        const Clock& clock;
        std::function<std::optional<std::set<std::int64_t>>(DateTime day)> taken; // answers as WithRecordsOn does
        // Stores the shift for everybody or for nobody. Answers why nothing was stored, in a sentence; empty where it was.
        std::function<QString(const Shift& shift, const std::string& reason)> store;
    };

    struct Usual
    {
        DateTime start; // time of day at which the auto shift starts; midnight: not set
        DateTime end;   // time of day at which it ends; midnight: not set
        std::int32_t longShiftHours = 0;
    };

    // `day` is proposed. REQUIRES: `people` is not empty.
    FAddShift(QWidget* parent, People people, Services services, const Usual& usual, DateTime day, const ReasonLine& reasons);
    ~FAddShift() override;

    // What was stored, as a line to show; empty where nothing was.
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
    std::optional<DateTime> m_askedFor; // the day that `m_taken` belongs to
    std::optional<std::set<std::int64_t>> m_taken;
    QString m_stored;
};

} // namespace ptk
