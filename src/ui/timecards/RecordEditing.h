// Records of the current card, and those that the check found elsewhere, in the editor and deleted.
#pragma once

#include "office/card/NewRecord.h"
#include "ui/editors/TimeRecordReceiver.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

class QWidget;

namespace ptk {

class CardChoice;
class CardStoring;
class CTimeRecord;
class CurrentCard;
class FTimeEditor;
class NoticeLine;
class Workplace;
struct FindingPlace;
struct Punch;

// What somebody typed in vain is offered again.
class RecordEditing final : public TimeRecordReceiver
{
public:
    // The page's own parts, which outlive this; the page is the editor's parent.
    struct Place
    {
        QWidget& page;
        const CardChoice& choice;
        CurrentCard& card;
        CardStoring& storing;
        NoticeLine& line;
    };

    RecordEditing(Workplace& host, const Place& place) : m_host(host), m_place(place) {}

    void New();
    void EditChosen();
    void DeleteChosen();

    // Says where they are, with a way to the first; nothing where all are on the card.
    void OfferElsewhere(const FindingPlace& place);

    void EditElsewhere(const Punch& punch);
    void DeleteElsewhere(const Punch& punch);

    bool ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord) override;

private:
    // A record in the editor, and what was typed for it in vain before.
    struct Editing
    {
        std::shared_ptr<CTimeRecord> record;
        bool isNew = false;
        std::optional<RecordTexts> typed{};
        std::string reason{};
    };

    void Open(const Editing& editing);
    void Prepare(FTimeEditor& editor, const Editing& editing);
    void EditAgain(const Editing& editing, const FTimeEditor& editor);
    void Delete(const std::shared_ptr<CTimeRecord>& record);

    // nullptr, said in the line with that text, where it cannot be had.
    [[nodiscard]] std::shared_ptr<CTimeRecord> RecordElsewhere(const Punch& punch, const char* refused);

    Workplace& m_host;
    Place m_place;
    const FTimeEditor* m_editor = nullptr; // the one that is open
    bool m_editingNew = false;             // whether the editor was last opened for a new record; nothing depends on it
    bool m_refused = false;                // whether the record that the editor returned could not be stored
};

} // namespace ptk
