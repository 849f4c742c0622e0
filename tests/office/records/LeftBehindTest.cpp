#include "office/records/LeftBehind.h"
#include "office/records/CompanyTexts.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

CompanyTexts Company(const char* id, const char* name, const char* city)
{
    CompanyTexts texts;
    texts.id = id;
    texts.name = name;
    texts.city = city;
    return texts;
}

// What a page says when the entry "Birch" of its list of names is chosen, after `typed` was typed there and `city` beside it; empty:
// nothing.
std::string LeftByBirch(const CompanyTexts& shown, const std::string& typed, const std::string& city)
{
    TypedTexts<CompanyTexts> texts;
    texts.Show(shown);
    texts.Type(&CompanyTexts::name, typed);
    CompanyTexts page = shown;
    page.name = "Birch";
    page.city = city;
    const auto left = texts.LeftByChoice(page, &CompanyTexts::name);
    return left ? NoticeOf(*left) + ": " + left->typed.name + ", " + left->typed.city : "";
}

TEST(TypedTextsTest, TellsWhatAChoiceLeavesBehind)
{
    const CompanyTexts acorn = Company("1", "Acorn", "Harbor");
    struct Case
    {
        const char* name;
        CompanyTexts shown;
        const char* typed;
        const char* city;
        const char* left;
    };
    for (const Case& c : {Case{"nothing", acorn, "Acorn", "Harbor", ""},
                          {"typed to find", acorn, "bIR", "Harbor", ""},
                          {"emptied to find", acorn, "", "Harbor", ""},
                          {"found beside a change", acorn, "bir", "Quay", "Changes to Acorn were not saved: Acorn, Quay"},
                          {"another name", acorn, "Oak", "Harbor", "Changes to Acorn were not saved: Oak, Harbor"},
                          {"a new one", {}, "Oak", "Quay", "Oak was not saved: Oak, Quay"},
                          {"a new one without a name", {}, "", "Quay", "The new record was not saved: , Quay"},
                          {"a new one, typed to find", {}, "Birch", "", ""}}) {
        EXPECT_EQ(LeftByBirch(c.shown, c.typed, c.city), c.left) << c.name;
    }
}

TEST(TypedTextsTest, WhatWasBroughtBackIsStillUnsaved)
{
    TypedTexts<CompanyTexts> texts;
    texts.BringBack({Company("1", "Acorn", ""), Company("1", "Oak", "")});
    EXPECT_FALSE(texts.Left(Company("1", "Acorn", "")));
    EXPECT_EQ(texts.LeftByChoice(Company("1", "Birch", ""), &CompanyTexts::name)->typed, Company("1", "Oak", ""));
}

TEST(TypedTextsTest, WhatIsBroughtBackLeavesOthersChangesAlone)
{
    const LeftBehind<CompanyTexts> left{Company("1", "Acorn", "Harbor"), Company("1", "Oak", "Harbor")};
    EXPECT_EQ(TypedOver(left, Company("1", "Ash", "Quay")), Company("1", "Oak", "Quay"));
    const auto removed = AsNew(left);
    EXPECT_EQ(NoticeOf(removed), "Oak was not saved");
    EXPECT_EQ(removed.typed, Company("", "Oak", "Harbor"));
}

TEST(TypedFateTest, DependsOnWhatTheRecordIsNow)
{
    const CompanyTexts acorn = Company("1", "Acorn", "Harbor");
    const CompanyTexts typed = Company("1", "Oak", "Harbor");
    struct Case
    {
        const char* name;
        LeftBehind<CompanyTexts> left;
        std::optional<CompanyTexts> present;
        bool isRead;
        TypedFate fate;
    };
    for (const Case& c : {Case{"as it was", {acorn, typed}, acorn, true, TypedFate::PutBack},
                          {"as it was, unread", {acorn, typed}, acorn, false, TypedFate::PutBack},
                          {"another name", {acorn, typed}, Company("1", "Ash", "Harbor"), true, TypedFate::Offered},
                          {"what was typed is stored", {acorn, typed}, typed, true, TypedFate::Offered},
                          {"removed", {acorn, typed}, std::nullopt, true, TypedFate::OfferedAsNew},
                          {"unread", {acorn, typed}, std::nullopt, false, TypedFate::Offered},
                          {"a new one", {{}, Company("", "Oak", "")}, std::nullopt, true, TypedFate::PutBack},
                          {"a new one, unread", {{}, Company("", "Oak", "")}, std::nullopt, false, TypedFate::PutBack}}) {
        EXPECT_EQ(FateOf(c.left, c.present, c.isRead), c.fate) << c.name;
    }
}

TEST(LeavingQuestionTest, NamesWhatIsNotSaved)
{
    EXPECT_EQ(LeavingQuestion({"Changes to Ann Lee were not saved", "Acorn was not saved"}),
              "Changes to Ann Lee were not saved.\nAcorn was not saved.\n\nSave before leaving?");
}

} // namespace

} // namespace ptk
