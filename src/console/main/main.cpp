#include "console/Program.h"
#include "console/TerminalPassword.h"
#include "platform/files/DraftsAtEnd.h"
#include "platform/system/Clock.h"
#include "platform/system/Process.h"
#include "store/postgres/line/ServerAddress.h"

#include <iostream>
#include <unistd.h>

int main(int argc, char* argv[])
{
    ptk::SettleProcess();
    ptk::RemoveRemovedOnSignalsOnSignals();
    ptk::AskForPasswordsWith(ptk::AskAtTerminal);
    return ptk::RunConsole({argv + (argc > 0 ? 1 : 0), argv + argc}, ptk::SystemClock(), std::cout, std::cerr,
                           ::isatty(STDOUT_FILENO) == 1);
}
