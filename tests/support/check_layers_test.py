#!/usr/bin/env python3
"""The include check must see each way of breaking the layers, and nothing else."""
import unittest

from check_layers import faults

REFUSED = [
    ("platform/Text.cpp", '#include "shell/CFile.h"'),
    ("shell/CFile.cpp", '#include "startup/AdminMain.h"'),
    ("store/CJetDB.cpp", '#include "model/CEmployee.h"'),
    ("store/CJetDB.cpp", "#include <sqlite3.h>"),
    ("model/CTimeCard.cpp", "#include <SQLiteCpp/Database.h>"),
    ("model/CTimeCard.h", '#  include "reports/Report.h"'),
    ("reports/Report.cpp", "#include <QString>"),
    ("reports/Report.cpp", '#include "office/ListEdit.h"'),
    ("office/ListEdit.h", "#include <QString>"),
    ("console/main/main.cpp", "#include <QtWidgets/QWidget>"),
    ("console/Session.cpp", '#include "startup/CController.h"'),
    ("ui/FLogin.cpp", '#include "console/Session.h"'),
    ("model/CEmployee.cpp", '#include "CEmployee.h"'),
]
ACCEPTED = [
    ("startup/CController.cpp", '#include "reports/Report.h"'),
    ("store/sqlite/SqliteEngine.cpp", "#include <sqlite3.h>"),
    ("model/CTimeRecordFactory.cpp", '#include "store/engine/RecordSet.h"'),
    ("console/Session.cpp", '#include "reports/Report.h"'),
    ("ui/FLogin.cpp", '#include "ui_FLogin.h"\n#include <QLineEdit>\n#include "startup/Windows.h"'),
    ("platform/Text.cpp", "#include <charconv>"),
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
