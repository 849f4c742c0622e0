#include "store/engine/RecordSetBuilder.h"
#include "store/engine/StoredDate.h"
#include "store/StoreFixture.h"

#include <functional>

namespace ptk {

namespace {

const DateTime kMorning(CalendarDate{2003, 3, 5}, TimeOfDay{8, 5, 9});

// One row of one column.
std::shared_ptr<RecordSet> Single(const char* declared, void (*add)(RecordSet::Builder&))
{
    RecordSet::Builder rows;
    rows.AddColumn("x", declared);
    add(rows);
    rows.EndRow();
    return rows.Finish();
}

using Builder = RecordSet::Builder;

} // namespace

TEST(StoredDateTest, KeepsTheWholeRangeAndTheZeroDate)
{
    struct Case
    {
        DateTime moment;
        const char* text;
    };
    for (const Case& c : {Case{DateTime(), "1899-12-30 00:00:00"}, Case{kMorning, "2003-03-05 08:05:09"},
                          Case{DateTime(CalendarDate{100, 1, 1}), "0100-01-01 00:00:00"},
                          Case{DateTime(CalendarDate{9999, 12, 31}, TimeOfDay{23, 59, 59}), "9999-12-31 23:59:59"},
                          Case{DateTime(CalendarDate{2000, 2, 29}), "2000-02-29 00:00:00"}}) {
        EXPECT_EQ(StoredText(c.moment), c.text);
        EXPECT_EQ(FromStoredText(c.text), c.moment);
    }
}

TEST(StoredDateTest, LeavesOtherFormsAlone)
{
    for (const char* text : {"", "2003-03-05", "2003-03-05 08:05:0", "2003-03-05 08:05:090", "2003-03-05T08:05:09", "2003-02-29 00:00:00",
                             "2003-13-01 00:00:00", "2003-00-01 00:00:00", "2003-03-05 24:00:00", "2003-03-05 08:60:00",
                             "2003-03-05 08:05:60", "0099-12-31 00:00:00", "200x-03-05 08:05:09", "-003-03-05 08:05:09"}) {
        EXPECT_EQ(FromStoredText(text), std::nullopt) << text;
    }
}

TEST(RecordSetTest, WalksItsRowsAndKnowsTheirNumberAtOnce)
{
    Builder builder;
    builder.AddColumn("Number", "INTEGER");
    builder.AddColumn("Name", "TEXT");
    for (const std::int32_t number : {1, 2}) {
        builder.AddInteger(number);
        builder.AddText(number == 1 ? "one" : "two");
        builder.EndRow();
    }
    const auto rows = builder.Finish();
    EXPECT_EQ(rows->RecordCount(), 2);
    EXPECT_EQ(rows->TextAt(rows->Column("NAME")), "one");
    rows->MoveNext();
    EXPECT_EQ(rows->Field("name").ToText(), "two");
    rows->MoveNext();
    EXPECT_TRUE(rows->EndOfFile());
    EXPECT_EQ(FailureOf([&] { return rows->Int32At(0); }), failure::NoCurrentRecord);
    EXPECT_EQ(FailureOf([&] { rows->MoveNext(); }), failure::NoCurrentRecord);
    rows->MoveFirst();
    EXPECT_EQ(rows->Int32At(0), 1);
    EXPECT_EQ(FailureOf([&] { return rows->Field("Other"); }), failure::SubscriptOutOfRange);
    EXPECT_EQ(FailureOf([&] { return rows->Field(2); }), failure::SubscriptOutOfRange);
}

TEST(RecordSetTest, HasNoCurrentRowWithoutRows)
{
    Builder builder;
    builder.AddColumn("x", "TEXT");
    const auto rows = builder.Finish();
    EXPECT_TRUE(rows->EndOfFile());
    EXPECT_EQ(rows->RecordCount(), 0);
    EXPECT_EQ(FailureOf([&] { rows->MoveFirst(); }), failure::NoCurrentRecord);
    EXPECT_EQ(FailureOf([&] { return rows->Field("x"); }), failure::NoCurrentRecord);
}

TEST(RecordSetTest, TypesValuesByTheColumnsDeclaration)
{
    struct Case
    {
        const char* declared;
        void (*add)(Builder&);
        Value::Storage expected;
    };
    for (const Case& c :
         {Case{"INTEGER", [](Builder& b) { b.AddInteger(40000); }, 40000}, Case{"integer", [](Builder& b) { b.AddText("12"); }, 12},
          Case{"INTEGER", [](Builder& b) { b.AddReal(2.5); }, 2},
          Case{"DATETIME", [](Builder& b) { b.AddText("2003-03-05 08:05:09"); }, kMorning},
          Case{"DateTime", [](Builder& b) { b.AddText("2003-03-05 08:05:09"); }, kMorning},
          Case{"SINGLE", [](Builder& b) { b.AddReal(12.3); }, 12.3F}, Case{"SINGLE", [](Builder& b) { b.AddInteger(12); }, 12.0F},
          Case{"BOOLEAN", [](Builder& b) { b.AddInteger(0); }, false}, Case{"BOOLEAN", [](Builder& b) { b.AddInteger(-1); }, true},
          Case{"BOOLEAN", [](Builder& b) { b.AddText("True"); }, true},
          Case{"TEXT", [](Builder& b) { b.AddText("00501"); }, std::string("00501")},
          Case{"TEXT", [](Builder& b) { b.AddText("2003-03-05 08:05:09"); }, std::string("2003-03-05 08:05:09")},
          Case{"TEXT", [](Builder& b) { b.AddInteger(7); }, std::string("7")}, Case{"", [](Builder& b) { b.AddInteger(7); }, 7},
          Case{"", [](Builder& b) { b.AddInteger(1LL << 40); }, 1099511627776.0},
          Case{"VARCHAR(50)", [](Builder& b) { b.AddText("a"); }, std::string("a")},
          Case{"DATETIME", [](Builder& b) { b.AddNull(); }, std::monostate()}}) {
        EXPECT_EQ(Single(c.declared, c.add)->Field("x").Get(), c.expected) << c.declared;
    }
}

TEST(RecordSetTest, ShowsEveryValueOnOneShortLine)
{
    struct Case
    {
        void (*add)(Builder&);
        std::string shown;
    };
    for (const Case& c : {Case{[](Builder& b) { b.AddNull(); }, "NULL"}, Case{[](Builder& b) { b.AddInteger(1LL << 40); }, "1099511627776"},
                          Case{[](Builder& b) { b.AddReal(12.5); }, "12.5"}, Case{[](Builder& b) { b.AddReal(1e300); }, "1e+300"},
                          Case{[](Builder& b) { b.AddBinary(); }, "a value of bytes"},
                          Case{[](Builder& b) { b.AddText("2003-03-05 08:05:09"); }, "\"2003-03-05 08:05:09\""},
                          Case{[](Builder& b) { b.AddText("one\r\ntwo"); }, "\"one  two\""},
                          Case{[](Builder& b) { b.AddText(std::string(59, 'x') + "\xC3\xA9"); }, '"' + std::string(59, 'x') + "...\""}}) {
        EXPECT_EQ(Single("DATETIME", c.add)->TextToShow(0), c.shown);
    }
}

TEST(RecordSetTest, RefusesWhatACellDoesNotMean)
{
    struct Case
    {
        const char* name;
        const char* declared;
        void (*add)(Builder&);
        std::function<void(const RecordSet&)> read;
        std::int32_t number;
    };
    for (const Case& c :
         {Case{"null", "INTEGER", [](Builder& b) { b.AddNull(); }, [](const RecordSet& r) { return r.Int32At(0); },
               failure::InvalidUseOfNull},
          Case{"null flag", "BOOLEAN", [](Builder& b) { b.AddNull(); }, [](const RecordSet& r) { return r.BooleanAt(0); },
               failure::InvalidUseOfNull},
          Case{"null date", "DATETIME", [](Builder& b) { b.AddNull(); }, [](const RecordSet& r) { return r.DateTimeAt(0); },
               failure::InvalidUseOfNull},
          Case{"null text", "TEXT", [](Builder& b) { b.AddNull(); }, [](const RecordSet& r) { return r.TextAt(0); },
               failure::InvalidUseOfNull},
          Case{"16 bits", "INTEGER", [](Builder& b) { b.AddInteger(32768); }, [](const RecordSet& r) { return r.Int16At(0); },
               failure::Overflow},
          Case{"32 bits", "INTEGER", [](Builder& b) { b.AddInteger(1LL << 31); }, [](const RecordSet& r) { return r.Int32At(0); },
               failure::Overflow},
          Case{"single", "SINGLE", [](Builder& b) { b.AddReal(1e39); }, [](const RecordSet& r) { return r.SingleAt(0); },
               failure::Overflow},
          Case{"word", "INTEGER", [](Builder& b) { b.AddText("many"); }, [](const RecordSet& r) { return r.Int32At(0); },
               failure::TypeMismatch},
          Case{"no date", "DATETIME", [](Builder& b) { b.AddText("2003-02-30 00:00:00"); },
               [](const RecordSet& r) { return r.DateTimeAt(0); }, failure::TypeMismatch},
          Case{"date in another form", "DATETIME", [](Builder& b) { b.AddText("2003-3-5 08:00:00"); },
               [](const RecordSet& r) { return r.DateTimeAt(0); }, failure::TypeMismatch},
          Case{"date as a number", "DATETIME", [](Builder& b) { b.AddReal(37000.25); }, [](const RecordSet& r) { return r.Field(0); },
               failure::TypeMismatch},
          Case{"no date as field", "DATETIME", [](Builder& b) { b.AddText("soon"); }, [](const RecordSet& r) { return r.Field(0); },
               failure::TypeMismatch},
          Case{"bytes", "TEXT", [](Builder& b) { b.AddBinary(); }, [](const RecordSet& r) { return r.TextAt(0); }, failure::TypeMismatch},
          Case{"bytes as field", "TEXT", [](Builder& b) { b.AddBinary(); }, [](const RecordSet& r) { return r.Field(0); },
               failure::TypeMismatch}}) {
        SCOPED_TRACE(c.name);
        const auto rows = Single(c.declared, c.add);
        EXPECT_EQ(FailureOf([&] { c.read(*rows); }), c.number);
    }
}

} // namespace ptk
