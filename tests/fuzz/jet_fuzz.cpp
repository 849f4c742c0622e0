// Whatever an older database file holds (patches of a sound one): its catalog and rows are read, or it is refused.
#include "fuzz/Targets.h"
#include "jetreader/Catalog.h"
#include "jetreader/Refusal.h"
#include "support/JetFileBuilder.h"

#include <array>
#include <cstdio>

#include <sys/mman.h>

namespace {

constexpr std::uint32_t kStaff = 3; // the page of its definition
constexpr std::array<std::size_t, 5> kColumns{0, 1, 2, 3, 4};

std::string SoundFile()
{
    using Type = ptk::JetFileBuilder::Type;
    ptk::JetFileBuilder builder;
    builder.AddTable("Staff",
                     {{"ID", Type::Long}, {"Name", Type::Text}, {"Rate", Type::Single}, {"Born", Type::Date}, {"Active", Type::Flag}},
                     {{1.0, "Jos\xE9", 12.5, 37000.25, 1.0}, {2.0, "", {}, -1.5, 0.0}, {3.0, {}, 0.0, {}, 1.0}});
    builder.AddTable(
        "MSysQueries",
        {{"ObjectId", Type::Long}, {"Attribute", Type::Short}, {"Expression", Type::Text}, {"Name1", Type::Text}, {"Name2", Type::Text}},
        {{7.0, 5.0, "", "Staff", ""}});
    builder.AddObject(7, "Everybody", 5);
    return builder.Build();
}

// What is read goes to the standard output, which nobody reads here.
bool SendNowhere()
{
    return std::freopen("/dev/null", "w", stdout) != nullptr;
}

template <typename Action>
void MayRefuse(const Action& action)
{
    try {
        action();
    } catch (const jet::Refused&) { // what it was about is refused
    }
}

} // namespace

#if defined(__clang__)
#pragma clang diagnostic ignored "-Wreserved-identifier" // the sanitizer's own name
#endif

// What the reading library keeps until the end of a process is the system's to take back.
extern "C" const char* __asan_default_options()
{
    return "detect_leaks=0";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string sound = SoundFile();
    static const bool nowhere = SendNowhere();
    ptk::Require(nowhere);
    const std::string bytes = ptk::Patched(sound, {data, size});
    const int descriptor = ::memfd_create("jet", 0);
    ptk::Require(::write(descriptor, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    MayRefuse([&] {
        const jet::JetFile file(descriptor, 0);
        MayRefuse([&] { jet::WriteCatalog(file); });
        MayRefuse([&] { jet::WriteRows(file, kStaff, kColumns); });
    });
    ::close(descriptor);
    return 0;
}
