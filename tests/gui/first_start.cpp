// The window before everything else, of somebody who has no program folder yet.
#include "gui/GuiFixture.h"
#include "ui/safety/FFirstStart.h"

namespace ptk {

namespace {

class FirstStartTest : public testing::Test
{
protected:
    FirstStartTest()
    {
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.Path()));
        window.show();
    }

    QString Hint() { return Find<QLabel>(window, "lblHint").text(); }
    void Enter(const char* box, const char* text) { Type(Find<QLineEdit>(window, box), text); }

    TemporaryFolder folder;
    FixedClock clock;
    std::string data = folder.Path() + "/data/ptk-admin";
    FFirstStart window{data, clock};
};

TEST_F(FirstStartTest, BeginsABusinessOfWhatWasTypedOnly)
{
    Enter("txtCompany", "Acme");
    Enter("txtLastName", "Lee");
    Enter("txtPassword", "secret");
    Enter("txtRepeated", "other");
    Click(window, "cmdStart");
    EXPECT_EQ(Hint(), "The two passwords are not the same.");
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(QFileInfo::exists(QString::fromStdString(folder.Path()) + "/data")) << "nothing before it can be whole";
    Enter("txtRepeated", "secret");
    Click(window, "cmdStart");
    EXPECT_EQ(window.result(), QDialog::Accepted);
    EXPECT_EQ(window.Folder(), data);
    EXPECT_TRUE(HoldsConfiguration(data));
}

TEST_F(FirstStartTest, TheSampleLeavesThePlaceOfARealBusinessFree)
{
    Find<QRadioButton>(window, "optSample").click();
    EXPECT_FALSE(Find<QLineEdit>(window, "txtCompany").isEnabled());
    Click(window, "cmdStart");
    EXPECT_EQ(window.Folder(), data + "-sample");
    EXPECT_TRUE(HoldsConfiguration(data + "-sample"));
    EXPECT_FALSE(HoldsConfiguration(data));
}

TEST_F(FirstStartTest, AnExistingFolderIsRememberedWhenItIsOne)
{
    Find<QRadioButton>(window, "optFolder").click();
    Enter("txtFolder", "/nowhere");
    Click(window, "cmdStart");
    EXPECT_EQ(Hint(), "There is no folder /nowhere.");
    WriteBytes(folder.Path() + "/system/ptk_11.cfg", "[PTK]\r\n");
    Enter("txtFolder", folder.Path().c_str());
    Click(window, "cmdStart");
    EXPECT_EQ(window.Folder(), folder.Path());
    EXPECT_EQ(ReadBytes(folder.Path() + "/ptk-admin/program-folder"), folder.Path() + "\n");
}

} // namespace

} // namespace ptk
