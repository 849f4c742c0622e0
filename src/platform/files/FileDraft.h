// Files that appear whole or not at all: written aside under a name of their own, flushed, and only then put in place.
#pragma once

#include "platform/Failure.h"
#include "platform/files/DraftsAtEnd.h"
#include "platform/files/SystemFile.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ptk {

// An empty file beside the target, for its owner only, that anybody may fill under Path(). It is gone again with its owner unless one of
// the two endings gave it the target's name. Paths are in the platform's own form.
class FileDraft
{
public:
    // Also removes the drafts of this target that killed programs left, with what an engine kept beside them; those that a living program
    // works on stay, and one that a signal ends takes its own along (DraftsAtEnd). Raises 75 when the target is, or is a link to, something
    // else than a regular file, 70 when it or the folder may not be written, 76 without the folder, 61, 57.
    explicit FileDraft(std::string target);
    ~FileDraft();
    FileDraft(const FileDraft&) = delete;
    FileDraft& operator=(const FileDraft&) = delete;

    [[nodiscard]] const std::string& Path() const { return m_path; }

    // The draft itself, open for writing.
    SystemFile& File() { return m_file; }

    // Puts the draft in the place of whatever the target is by now: of a link itself, not of what it leads to. A file that is replaced
    // hands down its mode, unless it is a stranger's or has another name elsewhere. Raises 61, 57, 70; the target is then what it was,
    // except when only the last step failed, which makes sure that the folder, too, is on the disk: the failure says then that all is done.
    void Replace();

    // Gives the draft the target's name only where nothing has it. Raises AlreadyThere and what Replace raises; there is then no new file,
    // except where Replace had been done, too.
    void PlaceNew();

    // Gives the draft another name in the target's folder; false, and still a draft, where something has that name. Raises what PlaceNew
    // raises, save AlreadyThere.
    [[nodiscard]] bool PlaceAs(const std::string& target);

    // 75, with the name.
    [[nodiscard]] static Failure AlreadyThere(const std::string& target);

private:
    void Create();
    bool Hold();
    void HandDownMode();
    [[nodiscard]] bool RenameToFree() const;

    std::string m_target;
    SystemFile m_folder;
    std::string m_path;
    SystemFile m_file;
    std::optional<MortalFile> m_mortal;
    bool m_placed = false;
};

// Told a draft's target, without its folder, and the draft's path.
using IsOurDraft = std::function<bool(const std::string& target, const std::string& draft)>;

// Of all targets in the folder, those drafts that killed programs left and that are told to be ours, with what an engine kept beside them.
// Raises nothing of its own: what cannot be removed stays for the next.
void RemoveAbandonedDrafts(const std::string& folder, const IsOurDraft& isOurs);

// Makes these bytes the whole content of the file by way of a draft; a file that holds just them is not touched. A link stays one, and what
// it leads to gets the bytes. False where nothing had to be written. Raises what a draft raises.
bool PutFile(const std::string& path, std::string_view bytes);

} // namespace ptk
