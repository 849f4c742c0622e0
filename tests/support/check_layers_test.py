#!/usr/bin/env python3
"""The include check must see each way of breaking the layers, and nothing else."""
import unittest

from check_layers import faults

REFUSED = [
    ("platform/text/Text.cpp", '#include "shell/CFile.h"'),
    ("shell/CFile.cpp", '#include "startup/AdminMain.h"'),
    ("store/CJetDB.cpp", '#include "model/CEmployee.h"'),
    ("store/CJetDB.cpp", "#include <sqlite3.h>"),
    ("model/CTimeCard.cpp", "#include <SQLiteCpp/Database.h>"),
    ("model/CTimeCard.h", '#  include "reports/Report.h"'),
    ("reports/Report.cpp", "#include <QString>"),
    ("reports/Report.cpp", '#include "office/records/ListEdit.h"'),
    ("office/records/ListEdit.h", "#include <QString>"),
    ("office/card/CardTexts.cpp", '#include "office/history/HistoryText.h"'),
    ("store/engine/Engine.cpp", '#include "store/sqlite/SqliteEngine.h"'),
    ("store/sqlite/SqliteEngine.cpp", '#include "store/postgres/line/ServerLine.h"'),
    ("ui/timecards/TimeCardPage.cpp", '#include "ui/frame/FController.h"'),
    ("office/nowhere/ListEdit.h", '#include "office/card/CardTexts.h"'),
    ("console/main/main.cpp", "#include <QtWidgets/QWidget>"),
    ("console/Session.cpp", '#include "startup/CController.h"'),
    ("ui/login/FLogin.cpp", '#include "console/Session.h"'),
    ("model/CEmployee.cpp", '#include "CEmployee.h"'),
]
ACCEPTED = [
    ("startup/CController.cpp", '#include "reports/Report.h"'),
    ("store/sqlite/SqliteEngine.cpp", "#include <sqlite3.h>"),
    ("model/CTimeRecordFactory.cpp", '#include "store/engine/RecordSet.h"'),
    ("console/Session.cpp", '#include "reports/Report.h"'),
    ("ui/login/FLogin.cpp", '#include "ui_FLogin.h"\n#include <QLineEdit>\n#include "startup/Windows.h"'),
    ("office/history/HistoryTable.cpp", '#include "office/card/CardTexts.h"'),
    ("platform/text/Text.cpp", '#include "platform/Failure.h"\n#include <charconv>'),
]


class CheckLayersTest(unittest.TestCase):
    def test_refuses(self):
        for path, text in REFUSED:
            with self.subTest(path=path, text=text):
                self.assertEqual(len(list(faults(path, text))), 1)

    def test_accepts(self):
        for path, text in ACCEPTED:
            with self.subTest(path=path, text=text):
                self.assertEqual(list(faults(path, text)), [])


if __name__ == "__main__":
    unittest.main()
