#include "ui/timecards/RecordEditing.h"

#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "office/card/CardFindings.h"
#include "office/card/CardRecords.h"
#include "office/card/CheckedTimecard.h"
#include "office/card/TimeCardNotices.h"
#include "platform/Succeeds.h"
#include "platform/system/Desktop.h"
#include "store/CSystemOptions.h"
#include "ui/editors/FTimeEditor.h"
#include "ui/page/Workplace.h"
#include "ui/timecards/CardChoice.h"
#include "ui/timecards/CardReasons.h"
#include "ui/timecards/CardStoring.h"
#include "ui/timecards/CurrentCard.h"
#include "ui/widgets/NoticeLine.h"

#include <QScopedValueRollback>

namespace ptk {

namespace {

using namespace timecardnotice;

constexpr auto kEditAgain = "Try again";
constexpr auto kRecordNotSaved = "Record not saved";
constexpr auto kRecordNotDeleted = "Record not deleted";
constexpr auto kNoEditor = "The record cannot be edited now";
constexpr auto kNotToDelete = "The record cannot be deleted now";
constexpr auto kOpenElsewhere = "Open Record";

} // namespace

void RecordEditing::New()
{
    if (m_place.card.Card() == nullptr) {
        return Tell(m_host.Desktop(), kNoCardForNew);
    }
    Open({std::make_shared<CTimeRecord>(), true});
}

void RecordEditing::EditChosen()
{
    if (m_place.card.Card() == nullptr) {
        return Tell(m_host.Desktop(), kNoCard);
    }
    const auto record = m_place.card.ChosenRecord();
    if (record == nullptr) {
        return Tell(m_host.Desktop(), kNoneToEdit);
    }
    Open({record});
}

void RecordEditing::DeleteChosen()
{
    if (m_place.card.Card() == nullptr) {
        return Tell(m_host.Desktop(), kNoCard);
    }
    const auto record = m_place.card.ChosenRecord();
    if (record == nullptr) {
        return Tell(m_host.Desktop(), kNoneToDelete);
    }
    Delete(record);
}

void RecordEditing::OfferElsewhere(const FindingPlace& place)
{
    if (place.elsewhere.empty()) {
        return m_place.line.Clear();
    }
    m_place.line.Offer(QString::fromStdString(place.text), kOpenElsewhere,
                       [this, punch = *place.elsewhere.front()] { EditElsewhere(punch); });
}

std::shared_ptr<CTimeRecord> RecordEditing::RecordElsewhere(const Punch& punch, const char* refused)
{
    const auto card = m_place.card.Card();
    const auto employee = card == nullptr ? nullptr : card->Employee();
    auto record = employee == nullptr ? nullptr : RecordToEdit(punch, employee->EmployeeID());
    if (record == nullptr) {
        m_place.line.Say(refused);
    }
    return record;
}

void RecordEditing::EditElsewhere(const Punch& punch)
{
    if (const auto record = RecordElsewhere(punch, kNoEditor)) {
        Open({record});
    }
}

void RecordEditing::DeleteElsewhere(const Punch& punch)
{
    if (const auto record = RecordElsewhere(punch, kNotToDelete)) {
        Delete(record);
    }
}

// Opens the editor. A record that could not be stored gets its former values back, so that nobody stores the typed ones unasked later on;
// they are offered again.
void RecordEditing::Open(const Editing& editing)
{
    const auto edit = [&] {
        FTimeEditor editor(m_host.Desktop(), m_host.Clock(), &m_place.page);
        const QScopedValueRollback<const FTimeEditor*> open(m_editor, &editor);
        const CTimeRecord before = *editing.record;
        Prepare(editor, editing);
        m_editingNew = editing.isNew;
        m_refused = false;
        editor.exec();
        if (m_refused) {
            *editing.record = before;
            EditAgain(editing, editor);
        }
        return true;
    };
    if (!Succeeds(edit)) {
        m_place.line.Say(kNoEditor);
    }
}

void RecordEditing::Prepare(FTimeEditor& editor, const Editing& editing)
{
    const auto options = m_host.Options();
    editor.TimeRecord(editing.record);
    editor.ParentWindow(this);
    editor.SetAutoShiftTimes(options->AutoShiftStartTime(), options->AutoShiftEndTime());
    editor.Owner(RecordOwnerText(m_place.card.Employee(), m_place.choice.Chosen().employee));
    if (m_place.card.IsPaid()) {
        editor.TellPaid(*m_place.card.Checked()->paid);
    }
    ReasonLine reason = ReasonFor(m_host, m_place.card);
    reason.reason = editing.reason;
    editor.OfferReasons(reason);
    if (editing.typed) {
        editor.Texts(*editing.typed);
    }
    editor.WarnAbove(m_place.card.LongShiftHours());
    if (editing.isNew) {
        editor.WarnAsNew(m_place.choice.PeriodIfDates());
    }
}

// Offers to edit again. A record that somebody else changed meanwhile is edited as it is now; one that was removed, as a new record.
void RecordEditing::EditAgain(const Editing& editing, const FTimeEditor& editor)
{
    Editing again{editing.record, editing.isNew, editor.Texts(), editor.Reason()};
    if (const auto& conflict = m_place.storing.Conflict()) {
        again.isNew = conflict->Removed();
        again.record = RecordToTryAgain(*editing.record, *conflict);
    }
    if (again.record != nullptr) {
        m_place.line.Offer(m_place.line.Text(), kEditAgain, [this, again] { Open(again); });
    }
}

bool RecordEditing::ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord)
{
    const auto store = [&](CTimeCard& card, CTimeRecordFactory& factory) { return StoreRecord(card, factory, thetimerecord); };
    const std::string owner = m_place.card.Employee();
    const std::string saved = m_editor == nullptr ? "Record saved for " + owner : m_editor->SavedText(owner);
    const std::string reason = m_editor == nullptr ? std::string() : m_editor->Reason();
    m_refused = !m_place.storing.Store({store, kNotStored, kRecordNotSaved, saved, thetimerecord, reason});
    return true;
}

void RecordEditing::Delete(const std::shared_ptr<CTimeRecord>& record)
{
    ReasonLine why = ReasonFor(m_host, m_place.card);
    const auto& question = kDeleteQuestion;
    if (m_host.Desktop().AskWithReason(question.text, question.title, question.icon, Buttons::YesNo, why) != Answer::Yes) {
        return;
    }
    const auto remove = [&](CTimeCard& card, CTimeRecordFactory& factory) { return StoreDeletion(card, factory, record); };
    m_place.storing.Store(
        {remove, kNotDeleted, kRecordNotDeleted, "Record of " + m_place.card.Employee() + " deleted", record, why.reason});
}

} // namespace ptk
