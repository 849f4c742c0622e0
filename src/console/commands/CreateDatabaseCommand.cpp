#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "office/business/SampleBusiness.h"
#include "platform/system/Clock.h"
#include "store/whole/BulkWriter.h"
#include "store/whole/DatabaseCreator.h"
#include "store/whole/DatabaseName.h"

namespace ptk {

namespace {

// Makes the database; answers what is left to do.
std::string Create(const std::string& path, const std::function<void(BulkWriter&)>& fill)
{
    try {
        return CreateDatabase(path, fill);
    } catch (const Failure& failure) {
        throw FileFailure(failure, path);
    }
}

} // namespace

int CreateDatabaseCommand(const CreateDatabaseArguments& arguments, Console& console)
{
    const std::string path = ConfiguredName(console.programFolder);
    const DateTime today = arguments.today.value_or(console.clock.Today());
    const auto sample = [today](BulkWriter& writer) { AddSampleBusiness(writer, today); };
    const std::string left = arguments.sample ? Create(path, sample) : Create(path, nullptr);
    console.out << "created: " << TerminalText(SaidDatabase(path)) << '\n';
    if (!left.empty()) {
        console.err << "ptk-console: " << left << '\n';
    }
    return status::Done;
}

} // namespace ptk
