#include "startup/AdminMain.h"

#include "platform/files/ProgramFolder.h"
#include "platform/files/SoleUse.h"
#include "shell/CEnumHolder.h"
#include "shell/CFile.h"
#include "startup/CController.h"
#include "startup/Notices.h"

#include <utility>

namespace ptk {

namespace {

constexpr std::int32_t kWriteMode = 1;
constexpr auto kSystemFolder = "\\system";
const std::string kRule(30, '-');

} // namespace

AdminMain::AdminMain(std::string programFolder, Desktop& desktop, const Clock& clock, WindowFactory& windows,
                     std::function<void(int)> endProcess)
    : m_programFolder(std::move(programFolder)), m_desktop(desktop), m_clock(clock), m_windows(windows), m_endProcess(std::move(endProcess))
{
}

AdminMain::~AdminMain() = default;

void AdminMain::Start()
{
    if (!TakeFolder()) {
        Tell(m_desktop, notice::AlreadyOpen);
        return m_endProcess(EXIT_SUCCESS);
    }
    OpenErrorLog();
    m_enumHolder = std::make_unique<CEnumHolder>();
    m_controller = std::make_shared<CController>(
        CController::Surroundings{m_programFolder, m_desktop, m_clock, m_windows, m_errorLog, [this](int status) { End(status); }});
    m_controller->Start();
}

bool AdminMain::TakeFolder()
{
    m_use.reset();
    m_use = std::make_unique<SoleUse>(NativePath(m_programFolder + kSystemFolder).string());
    return !m_use->TakenElsewhere();
}

void AdminMain::OpenErrorLog()
{
    m_errorLog = std::make_shared<CFile>(m_clock);
    if (!m_errorLog->OpenFile(m_programFolder + R"(\system\errorlog.txt)", kWriteMode)) {
        Tell(m_desktop, notice::LogUnopened);
        return;
    }
    m_errorLog->WriteLine("session begin");
    m_errorLog->WriteDateTime();
    m_errorLog->WriteLine(kRule);
}

void AdminMain::End(int status)
{
    m_controller.reset();
    m_enumHolder.reset();
    CloseErrorLog();
    m_errorLog.reset();
    m_endProcess(status);
}

void AdminMain::CloseErrorLog()
{
    if (!m_errorLog->FileOpen()) {
        return;
    }
    m_errorLog->WriteLine(kRule);
    m_errorLog->WriteLine("session end");
    m_errorLog->WriteDateTime();
    m_errorLog->CloseFile();
}

} // namespace ptk
