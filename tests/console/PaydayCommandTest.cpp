// ptk-console payday: what is kept, what it prints, and its statuses.
#include "console/ConsoleFixture.h"
#include "store/sqlite/SqliteEngine.h"
#include "support/Execute.h"

namespace ptk {

namespace {

class PaydayCommandTest : public ConsoleTest
{
protected:
    PaydayCommandTest()
    {
        EXPECT_EQ(Run({"create-database"}).status, 0);
        Elsewhere("INSERT INTO Employee (EmployeeNumber, FirstName, LastName, PayRate, OvertimePayRate, Active, AutoDeduct, "
                  "AutoDeductLunchLength, AutoDeductBreakLength, CompanyID) VALUES (7, 'Ann', 'Lee', 10, 15, 1, 0, 0, 0, 0), "
                  "(8, '', '=Kim', 10, 15, 1, 0, 0, 0, 0)");
        Elsewhere("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2026-03-02 08:00:00', '2026-03-02 16:00:00'), "
                  "(41, '2026-03-03 08:00:00', '1899-12-30 00:00:00')");
    }

    void Elsewhere(const std::string& sql) const { ExecuteIn(Database().string(), sql); }

    Answer Payday(std::vector<std::string> words)
    {
        words.insert(words.begin(), "payday");
        words.insert(words.end(), {"--from", "3/1/2026", "--to", "3/14/2026"});
        return Run(words);
    }
};

TEST_F(PaydayCommandTest, ClosesReopensAndAnswersByStatus)
{
    struct Case
    {
        std::vector<std::string> words;
        int status;
        std::string out;
        std::string err;
    };
    for (const Case& c : {
             Case{{"close"}, 3, "not closed =Kim: 1 problems\nclosed Ann Lee: 8.00 + 0.00 hours, 80.00\n", ""},
             Case{{"close", "--employee", "Ann Lee"}, 0, "paid already Ann Lee\n", ""},
             Case{{"close", "--employee", "=Kim", "--employee", "Nobody"}, 1, "", "ptk-console: 602: "},
             Case{{"close", "--employee", "=Kim"}, 0, "closed =Kim: 0.00 + 0.00 hours, 0.00\n", ""},
             Case{{"reopen"}, 0, "reopened =Kim\nreopened Ann Lee\n", ""},
             Case{{"reopen"}, 0, "", ""},
             Case{{}, 2, "", "ptk-console: "},
             Case{{"close", "--format", "csv"}, 2, "", "ptk-console: "},
             Case{{"account", "--format", "xml"}, 2, "", "ptk-console: "},
         }) {
        const Answer answer = Payday(c.words);
        EXPECT_EQ(answer.status, c.status) << answer.err;
        EXPECT_EQ(answer.out, c.out);
        EXPECT_EQ(answer.err.substr(0, c.err.size()), c.err);
    }
    EXPECT_EQ(Run({"payday", "close", "--from", "3/1/2026"}).status, 2);
    EXPECT_EQ(Run({"payday", "close", "--from", "3/2/2026", "--to", "3/1/2026"}).status, 2);
    EXPECT_NE(Run({"history"}).out.find("Ann Lee: payday 03/01/2026 - 03/14/2026 of 8.00 + 0.00 hours, 80.00 reopened"), std::string::npos);
}

TEST_F(PaydayCommandTest, AccountsForWhatWasPaidAndWhatBecameOfIt)
{
    EXPECT_EQ(Payday({"account"}).status, 0);
    EXPECT_EQ(Payday({"close", "--employee", "Ann Lee"}).status, 0);
    Elsewhere("UPDATE _Payday SET PaidBy = 'Bob'");                                            // 6: 1 to 4 made the records, 5 the closing
    Elsewhere("UPDATE TimeRecord SET EndTime = '2026-03-02 17:15:00' WHERE TimeRecordID = 1"); // 7
    Elsewhere("UPDATE Employee SET City = 'Ur', PayRate = 11 WHERE EmployeeID = 40");          // 8
    Elsewhere("UPDATE Employee SET City = 'Uruk' WHERE EmployeeID = 40");                      // 9
    Elsewhere("INSERT INTO _Payday (EmployeeID, FromDay, ToDay, Regular, Gross) VALUES (77, '2026-03-01 00:00:00', '2026-03-14 00:00:00', "
              "'much', '-5.00')");
    const Answer json = Payday({"account", "--format", "json"});
    EXPECT_EQ(json.status, 3);
    EXPECT_EQ(json.out,
              R"({"from":"2026-03-01","to":"2026-03-14","employees":[)"
              "\n"
              R"({"number":8,"id":41,"name":"=Kim","paid":[],"now":{"regular":"0.00","overtime":"0.00","gross":"0.00"},"changed":null,)"
              R"("changes":[]},)"
              "\n"
              R"({"number":7,"id":40,"name":"Ann Lee","paid":[{"at":"2026-03-20T09:30:00","by":"Bob","regular":"8.00","overtime":"0.00",)"
              R"("gross":"80.00"}],"now":{"regular":"8.00","overtime":"1.25","gross":"106.75"},"changed":{"regular":"+0.00",)"
              R"("overtime":"+1.25","gross":"+26.75"},"changes":[8,7]},)"
              "\n"
              R"({"number":null,"id":77,"name":null,"paid":[{"at":null,"by":null,"regular":"much","overtime":null,"gross":"-5.00"}],)"
              R"("now":null,"changed":{"regular":null,"overtime":null,"gross":null},"changes":[]})"
              "\n]}\n");
    EXPECT_EQ(Payday({"account", "--format", "csv"}).out,
              "Number,Name,Paid At,Paid By,Regular,Overtime,Gross,Now Regular,Now Overtime,Now Gross,Changed Regular,Changed Overtime,"
              "Changed Gross,Changes\n"
              "7,Ann Lee,2026-03-20T09:30:00,Bob,8.00,0.00,80.00,8.00,1.25,106.75,+0.00,+1.25,+26.75,8 7\n"
              ",,,,much,,-5.00,,,,,,,\n");
    const std::string text = Payday({"account"}).out;
    EXPECT_NE(text.find("\nAnn Lee\n    paid     8.00 + 0.00 hours, 80.00, 03/20/2026 09:30 AM by Bob\n"
                        "    now      8.00 + 1.25 hours, 106.75\n    changed  regular +0.00, overtime +1.25 hours, +26.75\n"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find(", another program: Ann Lee, end 03/02/2026 04:00 PM became 03/02/2026 05:15 PM\n"), std::string::npos) << text;
    const std::string file = (Folder() / "account.pdf").string();
    EXPECT_EQ(Payday({"account", "--format", "pdf", "-o", file}).status, 3);
    EXPECT_TRUE(ReadBytes(file).starts_with("%PDF-"));
}

} // namespace

} // namespace ptk
