// One Jet database file in memory: the program looks at it before the reading library reads it.
#pragma once

#include "jetreader/JetText.h"

#include <glib.h> // before the library's header, which would include it with the linkage of C
#include <mdbtools.h>

#include <memory>

namespace jet {

class JetFile
{
public:
    // Takes the whole regular file behind the descriptor. `codePage` overrules that of a Jet 3 file; 0: none does. Raises Refused.
    JetFile(int descriptor, int codePage);
    ~JetFile();
    JetFile(const JetFile&) = delete;
    JetFile& operator=(const JetFile&) = delete;

    [[nodiscard]] MdbHandle* Handle() const { return m_handle; }
    [[nodiscard]] const TextDecoder& Texts() const { return *m_texts; }
    [[nodiscard]] bool IsJet4() const { return m_jet4; }
    [[nodiscard]] int CodePage() const { return m_codePage; }

    // How many bytes lie behind the last whole page.
    [[nodiscard]] std::size_t BytesBehindLastPage() const { return m_size % PageSize(); }

private:
    [[nodiscard]] std::size_t PageSize() const { return m_jet4 ? 4096 : 2048; }
    void RefuseUnlessJet() const;
    void OpenHandle();
    void Open();

    void* m_bytes = nullptr;
    std::size_t m_size = 0;
    bool m_jet4 = false;
    int m_codePage;
    MdbHandle* m_handle = nullptr;
    std::unique_ptr<TextDecoder> m_texts;
};

} // namespace jet
