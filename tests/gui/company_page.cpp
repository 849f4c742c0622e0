// The Company page: finding, adding and changing companies, and what it refuses.
#include "gui/PageFixture.h"
#include "model/CCompanyList.h"
#include "ui/widgets/NoticeLine.h"

namespace ptk {

namespace {

const ShownBox kNoName{"You cannot save a company without a name.", "Company Save Error", Icon::Exclamation, Buttons::Ok};
const ShownBox kNotFound{"This company could not be found in the list. Save Aborted.", "Object Not found Error", Icon::Exclamation,
                         Buttons::Ok};
const ShownBox kNotSaved{"An error occurred while saving the company list.", "List Save Error", Icon::Exclamation, Buttons::Ok};

constexpr auto kCompanies = "SELECT CompanyID || ' ' || Name || ' ' || Phone || ' ' || Fax || ' ' || FederalTaxID AS x FROM Company "
                            "ORDER BY CompanyID";

void AddCompanies(BulkWriter& writer)
{
    CompanyRow company;
    company.CompanyName = "Acorn";
    company.Phone = "555-1";
    company.Fax = "555-2";
    company.FederalTaxID = "T1";
    writer.AddCompany(company);
    company.CompanyName = "Birch";
    company.Phone = "555-3";
    writer.AddCompany(company);
}

class CompanyPageTest : public PageTest
{
protected:
    CompanyPageTest() : PageTest(AddCompanies) { ClickTab(Main(), 4); }

    QString Notice() { return Find<NoticeLine>(Find(Main(), "FrameArray(4)"), "notice").Text(); }
    QString Shown()
    {
        return The<QComboBox>("cboCompanyID").currentText() + "|" + The<QComboBox>("cboCompanyName").currentText() + "|" +
               Text("txtCompanyPhone") + "|" + Text("txtCompanyFax") + "|" + Text("txtFederalTaxID");
    }
    Boxes Save()
    {
        Press("cmdCompanySave");
        return Told();
    }
};

TEST_F(CompanyPageTest, BothListsFindACompany)
{
    EXPECT_EQ(Shown(), "1|Acorn|555-1|555-2|T1") << "the first one at the start";
    Pick(The<QComboBox>("cboCompanyName"), "Birch");
    EXPECT_EQ(Shown(), "2|Birch|555-3|555-2|T1");
    EXPECT_EQ(StatusText(Main()), "Birch : Phone: 555-3");
    Pick(The<QComboBox>("cboCompanyID"), "1");
    EXPECT_EQ(Shown(), "1|Acorn|555-1|555-2|T1");
    EXPECT_EQ(Main().EventSource(), eventsource::None);
}

TEST_F(CompanyPageTest, SavesNewAndChangedCompanies)
{
    EXPECT_EQ(The<QPushButton>("cmdCompanyNew").toolTip(), "Click here to add a new employee...");
    Press("cmdCompanyNew");
    EXPECT_EQ(Shown(), "||||");
    EXPECT_TRUE(The<QComboBox>("cboCompanyName").hasFocus());
    EXPECT_EQ(Save(), Boxes{kNoName});
    Type(*The<QComboBox>("cboCompanyName").lineEdit(), "Bir"); // and not the company that begins so
    Type(The<QLineEdit>("txtCompanyFax"), "555-9");
    EXPECT_EQ(Save(), Boxes());
    EXPECT_EQ(Notice(), "Bir saved");
    EXPECT_EQ(Shown(), "||||");
    Pick(The<QComboBox>("cboCompanyName"), "Birch");
    Type(*The<QComboBox>("cboCompanyName").lineEdit(), "Acorn");
    Type(The<QLineEdit>("txtCompanyPhone"), "555-4");
    EXPECT_EQ(Save(), Boxes());
    EXPECT_EQ(Stored(kCompanies), (std::vector<std::string>{"1 Acorn 555-1 555-2 T1", "2 Acorn 555-4 555-2 T1", "3 Bir  555-9 "}));
    EXPECT_EQ(The<QComboBox>("cboCompanyID").count(), 3);
}

TEST_F(CompanyPageTest, WhatIsLeftBehindCanBeBroughtBack)
{
    Type(The<QLineEdit>("txtCompanyFax"), "555-9");
    TypeInto(The<QComboBox>("cboCompanyName"), "IRCH");
    Key(The<QComboBox>("cboCompanyName"), Qt::Key_Down);
    EXPECT_EQ(The<QComboBox>("cboCompanyName").currentText(), "IRCH") << "walked over in the proposals, not chosen";
    Key(The<QComboBox>("cboCompanyName"), Qt::Key_Return);
    EXPECT_EQ(Shown(), "2|Birch|555-3|555-2|T1");
    EXPECT_EQ(Notice(), "Changes to Acorn were not saved");
    Click(Find(Main(), "FrameArray(4)"), "cmdNotice");
    EXPECT_EQ(Shown(), "1|Acorn|555-1|555-9|T1");
    EXPECT_EQ(StatusText(Main()), "Acorn : Phone: 555-1");
}

TEST_F(CompanyPageTest, ARefusedSaveKeepsThePageAndCanBeTriedAgain)
{
    Type(The<QLineEdit>("txtCompanyPhone"), "555-4");
    {
        const auto holder = HoldDatabase();
        EXPECT_EQ(Save(), Boxes{kNotSaved});
    }
    EXPECT_EQ(Shown(), "1|Acorn|555-4|555-2|T1");
    EXPECT_EQ(Save(), Boxes());
    EXPECT_EQ(Stored(kCompanies), (std::vector<std::string>{"1 Acorn 555-4 555-2 T1", "2 Birch 555-3 555-2 T1"}));
    EXPECT_EQ(The<QComboBox>("cboCompanyID").count(), 2);
    Pick(The<QComboBox>("cboCompanyID"), "1");
    const auto list = program.Controller()->CompanyList();
    list->Remove(list->Find(list->GetCompanyByID(1)));
    EXPECT_EQ(Save(), Boxes{kNotFound});
    EXPECT_EQ(Shown(), "1|Acorn|555-4|555-2|T1");
}

} // namespace

} // namespace ptk
