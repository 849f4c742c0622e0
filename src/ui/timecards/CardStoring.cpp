#include "ui/timecards/CardStoring.h"

#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "office/card/CardTexts.h"
#include "office/history/ColumnWords.h"
#include "office/records/ConflictNotice.h"
#include "office/records/EmployeeTexts.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Notice.h"
#include "startup/CController.h"
#include "store/CJetDB.h"
#include "ui/page/SharedRecords.h"
#include "ui/page/Workplace.h"
#include "ui/timecards/CurrentCard.h"
#include "ui/widgets/NoticeLine.h"

namespace ptk {

bool CardStoring::Store(const Change& change)
{
    m_line.Clear();
    const int place = m_card.KeyboardPlace();
    const auto finding = m_card.ChosenFinding();
    if (!Succeeds([&] { return StoreQuietly(change); })) {
        const std::string refused = TellRefusal(change);
        Succeeds([this] { return m_card.ReadAgain(); });
        m_card.Complain(refused);
        return false;
    }
    m_host.SharedRecords().Remember();
    m_card.RegenerateAfterSave();
    m_card.TakeKeyboard(change.record == nullptr ? 0 : change.record->TimeRecordID(), place);
    const QString trouble = m_line.Text();
    if (finding) {
        m_card.ChooseNextFinding(finding);
    }
    m_line.SayBefore(QString::fromStdString(change.done) + (trouble.isEmpty() ? trouble : "; " + trouble));
    return true;
}

bool CardStoring::StoreQuietly(const Change& change)
{
    m_conflict.reset();
    const BusyPointer busy(m_host.Desktop());
    const auto controller = Required(m_host.Controller());
    const auto factory = Required(controller->TimeRecordFactory());
    const auto database = m_host.Database();
    const CJetDB::Reason reason(database, change.reason);
    const bool stored = change.step(*Required(m_card.Card()), *factory);
    if (!stored) {
        m_conflict = change.pastFactory ? database->Conflict() : factory->Conflict();
    }
    return stored;
}

// Tells in a box why the change was refused, and returns the sentence for the page's line.
std::string CardStoring::TellRefusal(const Change& change)
{
    if (m_conflict && Succeeds([&] { TellConflict(change); })) {
        return std::string(change.refused) + ": " + ConflictRemark(*m_conflict);
    }
    std::string refused = Refused(change);
    Tell(m_host.Desktop(), change.failed);
    return refused;
}

std::string CardStoring::Refused(const Change& change) const
{
    const auto controller = m_host.Controller();
    const auto database = controller == nullptr ? nullptr : controller->PTKDatabase();
    if (change.pastFactory && database != nullptr && !database->LastFailure().Description().empty()) {
        return std::string(change.refused) + ": " + database->LastFailure().Description();
    }
    const auto card = m_card.Card();
    return card == nullptr ? change.refused : RefusedText(change.refused, *card);
}

void CardStoring::TellConflict(const Change& change)
{
    const auto employees = m_host.Employees();
    const auto read = Required(change.record)->AsRead();
    const std::string name = MomentText(read ? read->StartTime : DateTime(), ColumnShape::Moment) + " of " + m_card.Employee();
    const std::string text = ConflictText(*m_conflict, name, [&](std::int64_t id) { return DisplayNameOf(*employees, id); });
    AskToLoad(m_host.Desktop(), change.failed.title, *m_conflict, text);
}

} // namespace ptk
