#include "store/ReportOffice.h"

#include "reports/CReportReview.h"
#include "store/BenchData.h"

#include <fcntl.h>
#include <fstream>
#include <stdexcept>
#include <unistd.h>

namespace bench {

namespace {

class NoViewer final : public ptk::ReportViewer
{
public:
    void Controller(std::shared_ptr<ptk::Report>) override {}
    void Caption(const std::string&) override {}
    bool WriteLine(const std::string&) override { return true; }
    void Show() override {}
    void Hide() override {}
    void Unload() override {}
};

void Flush(const std::filesystem::path& path)
{
    const int handle = ::open(path.c_str(), O_RDONLY);
    if (::fsync(handle) != 0) {
        throw std::runtime_error("no flush");
    }
    ::close(handle);
}

} // namespace

std::shared_ptr<ptk::ReportViewer> NoViewers::CreateViewer(ptk::ReportKind /*kind*/)
{
    return std::make_shared<NoViewer>();
}

Office::Office(const std::string& databaseName, ptk::DateTime firstDay)
    : folder(std::filesystem::absolute(DataFolder())), from(firstDay), to(kLastDay)
{
    database->DatabaseName(databaseName);
    factory->PTKDatabase(database);
    std::filesystem::create_directories(folder / "reports");
}

std::shared_ptr<ptk::CEmployee> Office::Employee(std::int32_t id)
{
    ptk::EmployeeRow row;
    row.EmployeeID = id;
    row.EmployeeNumber = id;
    row.FirstName = "Ann";
    row.LastName = "Bench";
    row.Address1 = "12 Oak Street";
    row.City = "Springfield";
    row.PayRate = 10;
    row.OvertimePayRate = 15;
    return std::make_shared<ptk::CEmployee>(row);
}

std::shared_ptr<ptk::CEmployeeList> Everyone(std::int32_t employees)
{
    auto list = std::make_shared<ptk::CEmployeeList>();
    for (std::int32_t i = 0; i < employees; ++i) {
        list->Insert(Office::Employee(kFirstEmployee + i), i + 1);
    }
    return list;
}

std::string WriteReview(Office& office, const std::shared_ptr<ptk::CEmployeeList>& list)
{
    const auto report = std::make_shared<ptk::CReportReview>(office.Context());
    if (!report->GenerateReport(office.database, list, office.from, office.to)) {
        throw std::runtime_error("no review");
    }
    return report->ReportPath();
}

std::string Bytes(const std::string& reportPath, const Office& office)
{
    std::ifstream file(office.folder / "reports" / reportPath.substr(reportPath.rfind('\\') + 1), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void RawReport(const Office& office, std::int32_t employees, const std::string& bytes, const std::function<void(std::int32_t)>& fetch)
{
    const std::size_t share = bytes.size() / static_cast<std::size_t>(employees);
    const std::filesystem::path reports = office.folder / "reports";
    std::ofstream file(reports / "raw.draft", std::ios::binary);
    for (std::int32_t i = 0; i < employees; ++i) {
        fetch(kFirstEmployee + i);
        file.write(bytes.data() + static_cast<std::size_t>(i) * share, static_cast<std::streamsize>(share)).flush();
    }
    Flush(reports / "raw.draft");
    std::filesystem::rename(reports / "raw.draft", reports / "raw.txt");
    Flush(reports);
}

} // namespace bench
