#include "shell/KeyedList.h"
#include "shell/CStringList.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace ptk;

namespace {

using Strings = std::vector<std::string>;

CStringList ListOf(const Strings& texts)
{
    CStringList list;
    for (const std::string& text : texts)
        list.Insert(text, list.Count() + 1);
    return list;
}

Strings Contents(CStringList& list)
{
    Strings texts;
    for (std::int32_t position = 1; position <= list.Count(); ++position)
        texts.push_back(list.Item(position));
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
    EXPECT_EQ(texts.Find("b"), 2);
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
    EXPECT_EQ(objects.Item(0), nullptr);
    EXPECT_EQ(objects.Item(3), nullptr);
    EXPECT_EQ(objects.ErrorNumber(), 0);
}

TEST(KeyedListTest, EveryOperationClearsTheErrorAndThePropertiesKeepIt)
{
    CStringList list = ListOf({"a"});
    const auto fail = [&] {
        list.Remove(9);
        return list.Count() > 0 && list.ErrorNumber() == 351;
    };
    EXPECT_TRUE(fail());
    list.Item(9);
    EXPECT_EQ(list.ErrorNumber(), 0);
    EXPECT_TRUE(fail());
    list.Find("z");
    EXPECT_EQ(list.ErrorNumber(), 0);
    EXPECT_TRUE(fail());
    list.Insert("b", 2);
    EXPECT_EQ(list.ErrorNumber(), 0);
    EXPECT_TRUE(fail());
    EXPECT_TRUE(list.Create());
    EXPECT_EQ(list.ErrorNumber(), 0);
    EXPECT_EQ(Contents(list), (Strings{"a", "b"})) << "a list with entries keeps them";
    EXPECT_TRUE(fail());
    EXPECT_TRUE(list.Destroy());
    EXPECT_EQ(list.ErrorNumber(), 0);
    EXPECT_EQ(list.Count(), 0);
}

// An entry whose copying, moving or comparing can be made to fail, as running out of memory would.
struct Brittle
{
    static inline bool broken = false;
    int value = 0;

    Brittle() = default;
    explicit Brittle(int v) : value(v) {}
    Brittle(const Brittle& other) : value(other.value) { Check(); }
    Brittle(Brittle&& other) : value(other.value) {} // NOLINT(performance-noexcept-move-constructor)
    Brittle& operator=(const Brittle& other)
    {
        Check();
        value = other.value;
        return *this;
    }
    Brittle& operator=(Brittle&& other) // NOLINT(performance-noexcept-move-constructor)
    {
        Check();
        value = other.value;
        return *this;
    }
    ~Brittle() = default;
    bool operator==(const Brittle& other) const
    {
        Check();
        return value == other.value;
    }
    static void Check()
    {
        if (broken)
            throw std::runtime_error("out of memory");
    }
};

TEST(KeyedListTest, TurnsWhatIsRaisedInsideIntoItsCodes)
{
    class Fragile : public KeyedStore<Brittle>
    {
    public:
        using KeyedStore::InsertAt;
        using KeyedStore::PositionOf;
        using KeyedStore::RemoveAt;
    };
    Fragile list;
    for (int value = 1; value <= 3; ++value)
        ASSERT_TRUE(list.InsertAt(Brittle(value), value));

    Brittle::broken = true;
    EXPECT_FALSE(list.InsertAt(Brittle(9), 1));
    EXPECT_EQ(list.ErrorNumber(), 312);
    EXPECT_FALSE(list.RemoveAt(1).has_value());
    EXPECT_EQ(list.ErrorNumber(), 313);
    EXPECT_EQ(list.PositionOf(Brittle(2)), -1);
    EXPECT_EQ(list.ErrorNumber(), 341);
    EXPECT_EQ(list.Item(2).value, 0);
    EXPECT_EQ(list.ErrorNumber(), 341);
    Brittle::broken = false;
}

} // namespace
