#include "office/EmployeeTexts.h"
#include "model/CEmployee.h"
#include "platform/Failure.h"
#include "support/Failures.h"

#include <functional>
#include <gtest/gtest.h>

namespace ptk {

namespace {

using Spoil = std::function<void(EmployeeTexts&)>;

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
    const auto refused = [&] { return CheckEmployeeTexts(texts); };
    texts.payRate = "abc";
    EXPECT_EQ(refused(), EmployeeRefusal::NoNumber);
    texts.number = "5a";
    EXPECT_EQ(refused(), EmployeeRefusal::NoName);
    texts.name = "Boss";
    EXPECT_EQ(refused(), EmployeeRefusal::NoSSN);
    texts.ssn = "1";
    EXPECT_EQ(refused(), EmployeeRefusal::WrongType);
    texts.number = "5";
    EXPECT_EQ(refused(), EmployeeRefusal::WrongType);
    texts.payRate = "-1";
    EXPECT_EQ(refused(), EmployeeRefusal::WrongType);
    texts.payRate = "1.5";
    texts.overtimePayRate = "1e3";
    EXPECT_EQ(refused(), EmployeeRefusal::WrongType);
    texts.overtimePayRate = "1.5";
    EXPECT_EQ(refused(), EmployeeRefusal::Administrator);
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
        const char* name;
        Spoil spoil;
        std::int32_t number;
    };
    for (const Case& c : {Case{"minutes beyond 16 bits", [](auto& texts) { texts.lunchLength = "32768"; }, failure::Overflow},
                          {"no minutes", [](auto& texts) { texts.breakLength = "half"; }, failure::TypeMismatch},
                          {"no date", [](auto& texts) { texts.releaseDate = "soon"; }, failure::TypeMismatch},
                          {"a number beyond 32 bits", [](auto& texts) { texts.number = "2147483648"; }, failure::Overflow}}) {
        CEmployee ann;
        EmployeeTexts texts = Ann();
        c.spoil(texts);
        EXPECT_EQ(FailureOf([&] { ReadEmployeeTexts(texts, ann); }), c.number) << c.name;
        EXPECT_EQ(ann.LastName(), "") << c.name;
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
