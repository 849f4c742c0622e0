#include "office/card/CardOffers.h"

#include "office/card/CheckedTimecard.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

Finding On(int day, FindingKind kind, std::vector<std::int64_t> records)
{
    Finding finding{kind, std::move(records), 0, {}, {}, "It is so."};
    finding.from = ToDateTime("3/" + std::to_string(day) + "/2026 8:00");
    return finding;
}

// An empty record that can be deleted, an open one with two remedies, a week that is only worth a look, a day of which a person must judge.
CheckedTimecard CardToMend()
{
    CheckedTimecard checked;
    checked.check.emplace();
    checked.check->findings = {On(2, FindingKind::Empty, {1}), On(3, FindingKind::Open, {2}), On(4, FindingKind::Week, {}),
                               On(5, FindingKind::Deduction, {3})};
    checked.remedies = {{{"Delete", {}, {}, {}}}, {{"End at five", {}, {}, {}}, {"Delete", {}, {}, {}}}, {}, {}};
    return checked;
}

TEST(CardOffersTest, AreTheRemediesOrTheWayToWhereItIsMended)
{
    const CheckedTimecard checked = CardToMend();
    const auto texts = [&](const Finding& finding) {
        std::string text;
        for (const CardOffer& offer : OffersFor(finding, checked)) {
            text += std::to_string(static_cast<int>(offer.kind)) + " " + offer.remedy.text + "|";
        }
        return text;
    };
    EXPECT_EQ(texts(checked.check->findings[1]), "0 End at five|0 Delete|");
    EXPECT_EQ(texts(checked.check->findings[3]), "");
    EXPECT_EQ(texts(On(1, FindingKind::NoRate, {})), "1 Enter the missing pay rate|");
    EXPECT_EQ(texts(On(1, FindingKind::PaidChanged, {2})), "2 Show what was changed since it was paid|");
    EXPECT_EQ(texts(On(1, FindingKind::Open, {9})), "") << "not of this check";
}

TEST(CardOffersTest, TheNextOneIsBehindWhatWasDoneAndNoMereNotice)
{
    CheckedTimecard checked = CardToMend();
    struct Case
    {
        std::optional<Finding> done;
        std::optional<std::size_t> next;
    };
    const Case cases[] = {{{}, 0},
                          {On(2, FindingKind::Empty, {1}), 0}, // still there
                          {On(2, FindingKind::Long, {7}), 1},
                          {On(3, FindingKind::Overlap, {7}), 3},
                          {On(6, FindingKind::Open, {7}), 0}}; // the first again
    for (const Case& one : cases) {
        EXPECT_EQ(NextToMend(checked, one.done), one.next);
    }
    checked.limits.showNotices = false;
    EXPECT_EQ(NextToMend(checked, {}), 0U) << "of those that are shown: the open one";
    checked.check->findings = {On(4, FindingKind::Week, {})};
    checked.remedies = {{}};
    EXPECT_EQ(NextToMend(checked, {}), std::nullopt);
    checked.check.reset();
    EXPECT_EQ(NextToMend(checked, {}), std::nullopt);
}

} // namespace

} // namespace ptk
