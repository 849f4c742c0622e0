// Editing and deleting the records of the current card, and those that the check found elsewhere.
#pragma once

#include "office/card/NewRecord.h"
#include "ui/editors/TimeRecordReceiver.h"

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

// What was typed in the editor and could not be stored is offered again.
class RecordEditing final : public TimeRecordReceiver
{
public:
    // Parts of the page, which outlive this. The page is the parent of the editor.
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

    // Says where the finding's records outside the card are, with a button that opens the first. Where all are on the card, clears the
    // line.
    void OfferElsewhere(const FindingPlace& place);

    void EditElsewhere(const Punch& punch);
    void DeleteElsewhere(const Punch& punch);

    bool ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord) override;

private:
    // A record in the editor, and what was typed for it before and could not be stored.
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

    // The record outside the card; nullptr where it cannot be had, which the line then says with the text `refused`.
    [[nodiscard]] std::shared_ptr<CTimeRecord> RecordElsewhere(const Punch& punch, const char* refused);

    Workplace& m_host;
    Place m_place;
    const FTimeEditor* m_editor = nullptr; // the one that is open
    bool m_editingNew = false;             // whether the editor was last opened for a new record; nothing depends on it
    bool m_refused = false;                // whether the record that the editor returned could not be stored
};

} // namespace ptk
