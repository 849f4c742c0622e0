#include "shell/KeyedList.h"
#include "shell/CStringList.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace ptk;

namespace {

using Strings = std::vector<std::string>;

CStringList ListOf(const Strings& texts)
{
    CStringList list;
    for (const std::string& text : texts) {
        list.Insert(text, list.Count() + 1);
    }
    return list;
}

Strings Contents(CStringList& list)
{
    Strings texts;
    for (std::int32_t position = 1; position <= list.Count(); ++position) {
        texts.push_back(list.Item(position));
    }
    return texts;
}

TEST(KeyedListTest, InsertsAtAClampedPosition)
{
    struct Case
    {
        std::int32_t position;
        Strings expected;
    };
    for (const Case& c : {Case{1, {"x", "a", "b", "c"}}, Case{3, {"a", "b", "x", "c"}}, Case{4, {"a", "b", "c", "x"}},
                          Case{10, {"a", "b", "c", "x"}}, Case{0, {"x", "a", "b", "c"}}, Case{-5, {"x", "a", "b", "c"}},
                          Case{INT32_MAX, {"a", "b", "c", "x"}}, Case{INT32_MIN, {"x", "a", "b", "c"}}}) {
        SCOPED_TRACE(c.position);
        CStringList list = ListOf({"a", "b", "c"});
        EXPECT_EQ(list.Insert("x", c.position), "x");
        EXPECT_EQ(Contents(list), c.expected);
    }
    CStringList empty;
    EXPECT_EQ(empty.Insert("x", 0), "x");
    EXPECT_EQ(Contents(empty), Strings{"x"});
}

TEST(KeyedListTest, RemovesOnlyWithinItsBounds)
{
    struct Case
    {
        std::int32_t position;
        std::string removed;
        std::int32_t errorNumber;
        Strings left;
    };
    for (const Case& c : {Case{1, "a", 0, {"b", "c"}}, Case{3, "c", 0, {"a", "b"}}, Case{0, "", 351, {"a", "b", "c"}},
                          Case{4, "", 351, {"a", "b", "c"}}, Case{-1, "", 351, {"a", "b", "c"}}}) {
        SCOPED_TRACE(c.position);
        CStringList list = ListOf({"a", "b", "c"});
        EXPECT_EQ(list.Remove(c.position), c.removed);
        EXPECT_EQ(list.ErrorNumber(), c.errorNumber);
        EXPECT_EQ(Contents(list), c.left);
    }
}

TEST(KeyedListTest, MoveIsARemovalAndAnInsertion)
{
    struct Case
    {
        const char* name;
        std::int32_t from, to;
        std::string moved;
        Strings expected;
    };
    for (const Case& c : {Case{"last to front", 3, 1, "c", {"c", "a", "b"}}, Case{"front to last", 1, 3, "a", {"b", "c", "a"}},
                          Case{"beyond the end", 1, 9, "a", {"b", "c", "a"}}, Case{"onto itself", 2, 2, "b", {"a", "b", "c"}},
                          Case{"from nowhere inserts an empty entry", 4, 1, "", {"", "a", "b", "c"}}}) {
        SCOPED_TRACE(c.name);
        CStringList list = ListOf({"a", "b", "c"});
        EXPECT_EQ(list.Move(c.from, c.to), c.moved);
        EXPECT_EQ(list.ErrorNumber(), 0);
        EXPECT_EQ(Contents(list), c.expected);
    }
}

TEST(KeyedListTest, FindsTextByEqualityAndObjectsByIdentity)
{
    CStringList texts = ListOf({"a", "b", "a"});
    EXPECT_EQ(texts.Find("a"), 1);
    EXPECT_EQ(texts.Find("B"), -1);

    class Objects final : public KeyedList<std::shared_ptr<int>>
    {
    };
    Objects objects;
    const auto first = std::make_shared<int>(7);
    const auto twin = std::make_shared<int>(7);
    objects.Insert(first, 1);
    EXPECT_EQ(objects.Find(twin), -1);
    objects.Insert(twin, 2);
    EXPECT_EQ(objects.Find(twin), 2);
}

TEST(KeyedListTest, EveryOperationClearsTheErrorAndThePropertiesKeepIt)
{
    CStringList list = ListOf({"a"});
    using Operation = std::function<void(CStringList&)>;
    for (const Operation& operation :
         {Operation([](auto& l) { l.Item(9); }), Operation([](auto& l) { l.Find("z"); }), Operation([](auto& l) { l.Insert("b", 2); }),
          Operation([](auto& l) { l.Create(); }), Operation([](auto& l) { l.Destroy(); })}) {
        list.Remove(9);
        EXPECT_EQ(list.Count() > 0 ? list.ErrorNumber() : 0, 351);
        operation(list);
        EXPECT_EQ(list.ErrorNumber(), 0);
    }
    EXPECT_EQ(list.Count(), 0);
}

} // namespace
