// ptk-console profiles, and the accountant's table by profile: what is printed and stored, and the statuses.
#include "console/ConsoleFixture.h"
#include "store/sqlite/SqliteEngine.h"
#include "support/Execute.h"

namespace ptk {

namespace {

class ProfileCommandsTest : public ConsoleTest
{
protected:
    ProfileCommandsTest()
    {
        EXPECT_EQ(Run({"create-database"}).status, 0);
        Elsewhere("INSERT INTO Employee (EmployeeNumber, FirstName, LastName, PayRate, OvertimePayRate, Active, AutoDeduct, "
                  "AutoDeductLunchLength, AutoDeductBreakLength, CompanyID) VALUES (7, 'Zoë', '=Kim', 10, 15.555, 1, 0, 0, 0, 0), "
                  "(8, 'Bo', 'Łoś', 10, 15, 1, 0, 0, 0, 0)");
        Elsewhere("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2026-03-16 08:00:00', '2026-03-16 17:20:00'), "
                  "(41, '2026-03-17 08:00:00', '2026-03-17 12:00:00')");
        Elsewhere(
            "INSERT INTO _Profile (Name, Definition) VALUES ('West', 'rows=kind' || char(10) || 'encoding=windows-1252' || char(10) || "
            "'hours=h:mm' || char(10) || 'column=Name' || char(9) || 'Who' || char(10) || 'column=Hours' || char(9) || 'H' || char(10) || "
            "'column=Pay' || char(9) || 'P' || char(10)), ('later', 'colour=red')");
    }

    void Elsewhere(const std::string& sql) const { ExecuteIn(Database().string(), sql); }

    Answer Review(std::vector<std::string> words)
    {
        words.insert(words.begin(), {"report", "review"});
        return Run(words);
    }
};

TEST_F(ProfileCommandsTest, AreListedAndMakeTheTableOfAReview)
{
    const Answer list = Run({"profiles"});
    EXPECT_EQ(list.status, 3) << "one cannot be read";
    EXPECT_EQ(list.out,
              "plain  13 columns, rows: one a person, separator: comma, decimal sign: point, hours: 7.50, dates: 2026-03-05, encoding: "
              "UTF-8, heading line: yes\n"
              "kinds  9 columns, rows: one a person and kind of hours, separator: comma, decimal sign: point, hours: 7.50, dates: "
              "2026-03-05, encoding: UTF-8, heading line: yes\n"
              "semicolons  13 columns, rows: one a person, separator: semicolon, decimal sign: comma, hours: 7.50, dates: 2026-03-05, "
              "encoding: UTF-8 with mark, heading line: yes\n"
              "later  cannot be read: its line \"colour=red\" is not known to this version\n"
              "West  3 columns, rows: one a person and kind of hours, separator: comma, decimal sign: point, hours: 7:30, dates: "
              "2026-03-05, encoding: Windows 1252, heading line: yes\n");

    // 1:20 at 15.555 is 20.74; what is left of the 100.74 is paid for the 8 hours.
    const Answer kinds = Review({"--profile", "kinds", "--employee", "Zoë =Kim"});
    EXPECT_EQ(kinds.status, 0) << kinds.err;
    EXPECT_EQ(kinds.err, "");
    EXPECT_EQ(kinds.out, "Employee Number,First Name,Last Name,From,To,Kind,Hours,Pay Rate,Pay\r\n"
                         "7,Zoë,'=Kim,2026-03-15,2026-03-29,Regular,8.00,10.00,80.00\r\n"
                         "7,Zoë,'=Kim,2026-03-15,2026-03-29,Overtime,1.33,15.56,20.74\r\n");
    const std::string file = (Folder() / "west.csv").string();
    const Answer west = Review({"--profile", "West", "--from", "3/16", "--to", "3/17", "-o", file});
    EXPECT_EQ(west.status, 3);
    EXPECT_EQ(west.out, "");
    EXPECT_EQ(west.err,
              "ptk-console: 4 characters are not in Windows 1252: question marks stand there\nptk-console: written: " + file + "\n");
    EXPECT_EQ(ReadBytes(file), "Who,H,P\r\nZo\xEB =Kim,8:00,80.00\r\nZo\xEB =Kim,1:20,20.74\r\n"
                               "Bo ?o?,4:00,40.00\r\nBo ?o?,0:00,0.00\r\n");
    EXPECT_FALSE(std::filesystem::exists(Folder() / "reports" / "salary_review_0316_0317_2026.txt")) << "a table is no report";
}

TEST_F(ProfileCommandsTest, AnswerByStatus)
{
    struct Case
    {
        std::vector<std::string> words;
        int status;
        std::string err;
    };
    for (const Case& c : {
             Case{{"--profile", "Plain"}, 1, "ptk-console: there is no profile \"Plain\"; ptk-console profiles lists all\n"},
             Case{{"--profile", ""}, 1, "ptk-console: there is no profile \"\"; ptk-console profiles lists all\n"},
             Case{{"--profile", "later"},
                  1,
                  "ptk-console: the profile \"later\" cannot be read: its line \"colour=red\" is not known to this version\n"},
             Case{{"--profile", "plain", "--employee", "Nobody"}, 1, "ptk-console: 602: "},
             Case{{"--profile", "plain", "--from", "3/17", "--to", "3/17"}, 1, "ptk-console: 710: "},
             Case{{"--profile", "plain", "-o", "/nowhere/x.csv"}, 1, "ptk-console: 76: "},
             Case{{"--profile", "plain", "--employee", "Bo Łoś", "--employee", "Bo Łoś"}, 3, "ptk-console: Bo Łoś stands 2 times, "},
             Case{{"--profile", "plain", "-o", ""}, 2, "ptk-console: "},
             Case{{"--profile", "plain", "--format", "csv"}, 2, "ptk-console: "},
             Case{{"--profile"}, 2, "ptk-console: "},
         }) {
        const Answer answer = Review(c.words);
        EXPECT_EQ(answer.status, c.status) << answer.err;
        EXPECT_EQ(answer.err.substr(0, c.err.size()), c.err);
    }
    EXPECT_NE(Review({"--profile", "plain", "--from", "3/17", "--to", "3/17"}).out.find("\r\n8,Bo,Łoś,"), std::string::npos)
        << "the others";
    EXPECT_EQ(Run({"report", "ytd", "--profile", "plain"}).status, 2);
}

} // namespace

} // namespace ptk
