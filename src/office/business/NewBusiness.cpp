#include "office/business/NewBusiness.h"

#include "office/business/Guide.h"
#include "office/business/SampleBusiness.h"
#include "platform/Failure.h"
#include "platform/files/FileDraft.h"
#include "platform/files/FileSteps.h"
#include "platform/files/ProgramFolder.h"
#include "store/whole/BulkWriter.h"
#include "store/whole/DatabaseCreator.h"

#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fmt/format.h>
#include <system_error>
#include <unistd.h>

namespace ptk {

namespace {

namespace fs = std::filesystem;

constexpr const char* kConfiguration = "[PTK]\r\nDatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp={}\r\n";
constexpr const char* kDatabase = "/system/ptk_11.mdb";

constexpr std::int32_t kFirstNumber = 1; // employee number of the first employee

// A hidden folder beside the new one. Place gives it the new folder's name; without that it is removed in the end.
class FolderDraft
{
public:
    explicit FolderDraft(const std::string& folder) : m_folder(folder)
    {
        if (IsThere(folder)) {
            throw FileDraft::AlreadyThere(folder);
        }
        const fs::path parent = fs::path(folder).parent_path();
        std::error_code ignored; // the next step tells of a failure
        fs::create_directories(parent, ignored);
        m_path = (parent / ("." + fs::path(folder).filename().string() + ".new")).string();
        fs::remove_all(m_path, ignored); // what a killed program left
        MakeOwnFolder(m_path);
    }
    ~FolderDraft()
    {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }
    FolderDraft(const FolderDraft&) = delete;
    FolderDraft& operator=(const FolderDraft&) = delete;

    [[nodiscard]] const std::string& Path() const { return m_path; }

    void Place() const
    {
        if (std::rename(m_path.c_str(), m_folder.c_str()) != 0) {
            throw Failure::FromErrno(errno);
        }
    }

private:
    std::string m_folder;
    std::string m_path;
};

void Furnish(const FolderDraft& draft, bool loginHelp)
{
    for (const char* part : {"/system", "/reports", "/documentation"}) {
        MakeOwnFolder(draft.Path() + part);
    }
    PutFile(NativePath(draft.Path() + kConfigurationFile).string(),
            fmt::format(fmt::runtime(kConfiguration), loginHelp ? "True" : "False"));
}

void Begin(const std::string& folder, bool loginHelp, const std::function<void(BulkWriter&)>& fill)
{
    const FolderDraft draft(folder);
    Furnish(draft, loginHelp);
    CreateDatabase(draft.Path() + kDatabase, fill);
    RenewGuide(draft.Path(), InstalledFile(kInstalledGuide));
    draft.Place();
}

} // namespace

std::string BusinessRefusal(const NewBusiness& business)
{
    if (business.company.empty()) {
        return "Enter the name of the company.";
    }
    if (business.lastName.empty()) {
        return "Enter your own name; you log in with it.";
    }
    if (business.password.empty()) {
        return "Enter a password; you log in with it.";
    }
    return business.password == business.repeated ? std::string() : "The two passwords are not the same.";
}

void BeginBusiness(const std::string& folder, const NewBusiness& business)
{
    Begin(folder, false, [&](BulkWriter& writer) {
        CompanyRow company;
        company.CompanyName = business.company;
        EmployeeRow owner;
        owner.CompanyID = writer.AddCompany(company);
        owner.FirstName = business.firstName;
        owner.LastName = business.lastName;
        owner.Password = business.password;
        owner.EmployeeNumber = kFirstNumber;
        owner.EmployeeActive = true;
        writer.AddEmployee(owner);
        writer.CloseShippedAccount();
    });
}

void BeginSample(const std::string& folder, DateTime today)
{
    Begin(folder, true, [&](BulkWriter& writer) { AddSampleBusiness(writer, today); });
}

ImportOutcome BeginWithOldDatabase(const std::string& folder, ImportOrder order, const ImportProgress& progress)
{
    const FolderDraft draft(folder);
    Furnish(draft, true);
    order.database = draft.Path() + kDatabase;
    order.programFolder = draft.Path();
    ImportOutcome outcome = ImportOldDatabase(order, progress);
    if (!order.trial && outcome.refusal.empty()) {
        RenewGuide(draft.Path(), InstalledFile(kInstalledGuide));
        draft.Place();
        outcome.accountFile.replace(0, draft.Path().size(), folder);
    }
    return outcome;
}

std::string FolderRefusal(const std::string& folder)
{
    std::error_code error;
    if (!fs::is_directory(folder, error)) {
        return "There is no folder " + folder + ".";
    }
    if (!HoldsConfiguration(folder)) {
        return "The folder " + folder + " has no configuration (system/ptk_11.cfg).";
    }
    const fs::path system = NativePath(folder + kConfigurationFile).parent_path();
    return ::faccessat(AT_FDCWD, system.c_str(), W_OK, AT_EACCESS) == 0 ? std::string()
                                                                        : "The folder " + system.string() + " may not be written.";
}

} // namespace ptk
