// Files that appear whole or not at all: they are written under another name beside the target, flushed, and only then put in its place.
#pragma once

#include "platform/Failure.h"
#include "platform/files/DraftsAtEnd.h"
#include "platform/files/SystemFile.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ptk {

// An empty file beside the target, readable by its owner only, that anybody may fill under Path(). The destructor removes it unless
// Replace, PlaceNew or PlaceAs gave it its final name. Paths are in the platform's own form.
class FileDraft
{
public:
    // Makes the draft. First it removes the drafts of this target that killed programs left, with what an engine kept beside them; drafts
    // that a living program works on stay. A signal that ends this program removes its own (DraftsAtEnd). Raises 75 when the target is, or
    // is a link to, something else than a regular file, 70 when it or the folder may not be written, 76 without the folder, 61, 57.
    explicit FileDraft(std::string target);
    ~FileDraft();
    FileDraft(const FileDraft&) = delete;
    FileDraft& operator=(const FileDraft&) = delete;

    [[nodiscard]] const std::string& Path() const { return m_path; }

    // The draft itself, open for writing.
    SystemFile& File() { return m_file; }

    // Gives the draft the target's name, in place of whatever has that name by now: a link itself is replaced, not what it leads to. A
    // regular file hands down its owner, group and mode, unless neither this user nor the folder's owner owns it, or it has a second name
    // (hard link). Raises 61, 57, 70; the target is then what it was, except when only the last step failed, which makes sure that the
    // folder, too, is on the disk: the failure then says that the file is done.
    void Replace();

    // Gives the draft the target's name only where nothing has it. Raises AlreadyThere and what Replace raises; there is then no new file,
    // except when only the last step failed, as for Replace.
    void PlaceNew();

    // Gives the draft another name in the target's folder. False, and still a draft, where something has that name. Raises what PlaceNew
    // raises, except AlreadyThere.
    [[nodiscard]] bool PlaceAs(const std::string& target);

    // The failure 75 that names the target.
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
    std::optional<RemovedOnSignal> m_mortal;
    bool m_placed = false;
};

// Whether a draft may be removed, by its target's name without the folder and by the draft's path.
using IsOurDraft = std::function<bool(const std::string& target, const std::string& draft)>;

// Removes the drafts in the folder that killed programs left, of any target, for which `isOurs` answers true, with what an engine kept
// beside them. Raises nothing of its own: what cannot be removed stays for the next call.
void RemoveAbandonedDrafts(const std::string& folder, const IsOurDraft& isOurs);

// Makes these bytes the whole content of the file by way of a draft. A file that holds just them is not touched: the answer is false. A
// link stays a link, and what it leads to gets the bytes. Raises what a draft raises.
bool PutFile(const std::string& path, std::string_view bytes);

} // namespace ptk
