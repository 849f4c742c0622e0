#include "office/records/EmployeeTexts.h"
#include "model/CEmployee.h"
#include "platform/Failure.h"
#include "support/Failures.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

EmployeeTexts Ann()
{
    EmployeeTexts ann;
    ann.id = "40";
    ann.number = "5";
    ann.name = "Ann Lee";
    ann.ssn = "111-11";
    ann.payRate = "12.50";
    ann.hireDate = "02/03/2001";
    return ann;
}

TEST(SplitDisplayNameTest, EndsTheFirstNameAtTheFirstBlank)
{
    using Names = std::pair<std::string, std::string>;
    EXPECT_EQ(SplitDisplayName("Ann Lee"), Names("Ann", "Lee"));
    EXPECT_EQ(SplitDisplayName("Lee"), Names("", "Lee"));
    EXPECT_EQ(SplitDisplayName("Mary Ann Lee"), Names("Mary", "Ann Lee"));
    EXPECT_EQ(SplitDisplayName(" Lee"), Names("", "Lee"));
    EXPECT_EQ(SplitDisplayName("Ann "), Names("Ann", ""));
}

TEST(CheckEmployeeTextsTest, RefusesInOrder)
{
    EXPECT_EQ(CheckEmployeeTexts(Ann()), std::nullopt);
    EmployeeTexts texts;
    texts.id = "39"; // the administrator, with everything else missing
    struct Step
    {
        std::string EmployeeTexts::*field;
        const char* text;
        EmployeeRefusal refusal; // once the text is typed
    };
    for (const Step& step : {Step{&EmployeeTexts::payRate, "abc", EmployeeRefusal::NoNumber},
                             {&EmployeeTexts::number, "5a", EmployeeRefusal::NoName},
                             {&EmployeeTexts::name, "Boss", EmployeeRefusal::NoSSN},
                             {&EmployeeTexts::ssn, "1", EmployeeRefusal::WrongType},
                             {&EmployeeTexts::number, "5", EmployeeRefusal::WrongType},
                             {&EmployeeTexts::payRate, "-1", EmployeeRefusal::WrongType},
                             {&EmployeeTexts::payRate, "", EmployeeRefusal::WrongType},
                             {&EmployeeTexts::payRate, "1.5", EmployeeRefusal::Administrator},
                             {&EmployeeTexts::overtimePayRate, "1e3", EmployeeRefusal::WrongType}}) {
        texts.*step.field = step.text;
        EXPECT_EQ(CheckEmployeeTexts(texts), step.refusal) << step.text;
    }
}

TEST(ReadEmployeeTextsTest, TakesWhatIsEmptyOrNegativeAsNone)
{
    CEmployee ann;
    ann.CompanyID(7);
    EmployeeTexts texts = Ann();
    texts.payRate.clear();
    texts.hireDate.clear();
    texts.lunchLength = "-5";
    texts.breakLength.clear();
    ReadEmployeeTexts(texts, ann);
    EXPECT_EQ(ann.PayRate(), 0.0F);
    EXPECT_TRUE(ann.HireDate().IsZero());
    EXPECT_EQ(ann.AutoDeductLunchLength(), 0);
    EXPECT_EQ(ann.AutoDeductBreakLength(), 0);
    EXPECT_EQ(ann.CompanyID(), 7) << "not on the page";
    EXPECT_EQ(ann.EmployeeID(), -1);
}

TEST(ReadEmployeeTextsTest, LeavesTheEmployeeAloneWhenOneTextDoesNotFit)
{
    struct Case
    {
        std::string EmployeeTexts::*field;
        const char* text;
        std::int32_t number;
    };
    for (const Case& c : {Case{&EmployeeTexts::lunchLength, "32768", failure::Overflow},
                          {&EmployeeTexts::breakLength, "half", failure::TypeMismatch},
                          {&EmployeeTexts::releaseDate, "soon", failure::TypeMismatch},
                          {&EmployeeTexts::number, "2147483648", failure::Overflow}}) {
        CEmployee ann;
        EmployeeTexts texts = Ann();
        texts.*c.field = c.text;
        EXPECT_EQ(FailureOf([&] { ReadEmployeeTexts(texts, ann); }), c.number) << c.text;
        EXPECT_EQ(ann.LastName(), "") << c.text;
    }
}

TEST(ShowEmployeeTextsTest, HidesTheRatesOfOneNotActive)
{
    CEmployee ann;
    EmployeeTexts texts = Ann();
    for (const bool active : {true, false}) {
        texts.active = active;
        ReadEmployeeTexts(texts, ann);
        EXPECT_EQ(ShowEmployeeTexts(ann).payRate, active ? "12.50" : "0.00");
        EXPECT_EQ(ann.PayRate(), 12.5F);
    }
    EXPECT_EQ(ShowEmployeeTexts(ann).hireDate, "2/3/2001");
    EXPECT_EQ(ShowEmployeeTexts(ann).releaseDate, "");
}

} // namespace

} // namespace ptk
