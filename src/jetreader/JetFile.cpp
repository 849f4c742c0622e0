#include "jetreader/JetFile.h"

#include "jetreader/Refusal.h"

#include <sys/mman.h>
#include <sys/stat.h>

#include <cstdlib>
#include <cstring>

namespace jet {

namespace {

constexpr std::size_t kLargest = std::size_t{400} << 20; // bytes: the rest of 512 MiB is for the reading itself
constexpr std::size_t kVersionAt = 20;
constexpr std::size_t kFewestPages = 4; // the catalog of tables stands on the third
constexpr char kJet[] = "\0\1\0\0Standard Jet DB";
constexpr char kNewer[] = "\0\1\0\0Standard ACE DB";
constexpr unsigned char kJet3 = 0;
constexpr unsigned char kJet4 = 1;
constexpr int kWestern = 1252;
constexpr int kVietnamese = 1258;

std::size_t SizeOf(int descriptor)
{
    struct stat file
    {
    };
    if (fstat(descriptor, &file) != 0 || !S_ISREG(file.st_mode) || file.st_size < static_cast<off_t>(sizeof kJet)) {
        throw Refused(Refusal::NoJetFile);
    }
    if (file.st_size > static_cast<off_t>(kLargest)) {
        throw Refused(Refusal::TooLarge);
    }
    return static_cast<std::size_t>(file.st_size);
}

// The library knows another code page than the header's only from the environment, which nobody but this program sets. In the Vietnamese
// one it would cut the names of all tables: it never fetches a last letter that still waits for an accent.
void ReadNamesIn(int codePage)
{
    setenv("MDB_JET3_CHARSET", NameOfCodePage(codePage == kVietnamese ? kWestern : codePage), 1);
}

} // namespace

JetFile::JetFile(int descriptor, int codePage) : m_size(SizeOf(descriptor)), m_codePage(codePage)
{
    m_bytes = mmap(nullptr, m_size, PROT_READ | PROT_WRITE, MAP_PRIVATE, descriptor, 0);
    if (m_bytes == MAP_FAILED) {
        throw Refused(Refusal::Unreadable);
    }
    RefuseUnlessJet();
    m_jet4 = static_cast<const unsigned char*>(m_bytes)[kVersionAt] == kJet4;
    if (m_size < kFewestPages * PageSize()) {
        throw Refused(Refusal::CutShort);
    }
    OpenHandle();
}

JetFile::~JetFile()
{
    if (m_handle != nullptr) {
        mdb_close(m_handle);
    }
    munmap(m_bytes, m_size);
}

void JetFile::RefuseUnlessJet() const
{
    if (std::memcmp(m_bytes, kNewer, sizeof kNewer) == 0) {
        throw Refused(Refusal::NewerFormat);
    }
    if (std::memcmp(m_bytes, kJet, sizeof kJet) != 0) {
        throw Refused(Refusal::NoJetFile);
    }
    const unsigned char version = static_cast<const unsigned char*>(m_bytes)[kVersionAt];
    if (version != kJet3 && version != kJet4) {
        throw Refused(Refusal::NewerFormat);
    }
}

void JetFile::OpenHandle()
{
    if (m_codePage != 0 && !m_jet4) {
        ReadNamesIn(m_codePage);
    }
    Open();
    if (!m_jet4 && m_codePage == 0 && m_handle->f->code_page == kVietnamese) {
        ReadNamesIn(kVietnamese);
        mdb_close(m_handle);
        Open();
    }
    if (m_jet4) {
        m_codePage = TextDecoder::kUtf16;
    } else if (m_codePage == 0) {
        m_codePage = m_handle->f->code_page;
    }
    m_texts = std::make_unique<TextDecoder>(m_codePage);
}

void JetFile::Open()
{
    m_handle = mdb_open_buffer(m_bytes, m_size, MDB_NOFLAGS);
    if (m_handle == nullptr) {
        throw Refused(Refusal::Unreadable);
    }
}

} // namespace jet
