// The main window on a database that the test fills, and a look into that database.
#pragma once

#include "gui/GuiFixture.h"
#include "store/CJetDB.h"
#include "store/engine/RecordSet.h"
#include "store/whole/BulkWriter.h"

#include <QtWidgets>
#include <string>
#include <vector>

namespace ptk {

using Boxes = std::vector<ShownBox>;

class PageTest : public testing::Test
{
protected:
    explicit PageTest(const std::function<void(BulkWriter&)>& fill) : program(fill)
    {
        program.LogIn();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Main()));
    }

    FController& Main() { return program.Main(); }
    template <typename Control>
    Control& The(const char* name)
    {
        return Find<Control>(Main(), name);
    }
    QString Text(const char* name) { return The<QLineEdit>(name).text(); }
    void Press(const char* button) { Click(Main(), button); }
    Boxes Told() { return program.desktop.Take(); }

    // The values of the column named x, one for each row of the select.
    std::vector<std::string> Stored(const std::string& sql)
    {
        CJetDB database(program.folder.Path());
        database.DatabaseName(Path());
        EXPECT_TRUE(database.OpenDB());
        const auto rows = database.ExecuteSelect(sql);
        std::vector<std::string> texts;
        for (; rows != nullptr && !rows->EndOfFile(); rows->MoveNext()) {
            texts.push_back(rows->Field("x").ToText());
        }
        database.CloseDB();
        return texts;
    }

    // Opens the database as another program would. It is held as long as the answer lives.
    std::unique_ptr<CJetDB> HoldDatabase()
    {
        auto holder = std::make_unique<CJetDB>(program.folder.Path());
        holder->DatabaseName(Path());
        EXPECT_TRUE(holder->OpenDB());
        return holder;
    }

    // Does what a click on an entry of the opened list does.
    static void Pick(QComboBox& box, const QString& text)
    {
        const int row = box.findText(text);
        ASSERT_GE(row, 0) << text.toStdString();
        box.setCurrentIndex(row);
        emit box.activated(row);
    }

    // Types over the text of a list or date box, without leaving it.
    static void TypeInto(QComboBox& box, const QString& text)
    {
        box.setFocus();
        box.lineEdit()->selectAll();
        QTest::keyClick(box.lineEdit(), Qt::Key_Delete);
        QTest::keyClicks(box.lineEdit(), text);
    }

    // Presses a key in the box itself, as the window system delivers it: the editor inside a list does not have the focus.
    static void Key(QComboBox& box, Qt::Key key) { QTest::keyClick(&box, key); }

    GuiProgram program;

private:
    std::string Path() const { return NativePath(program.databasePath).string(); }
};

} // namespace ptk
