#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>

#include "contacts/VendorRecord.h"
#include "platform/Files.h"
#include "platform/RecordLayout.h"
#include "platform/RuntimeError.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::ErrorOf;
using testing_support::TestFolder;

namespace {

constexpr FieldSpec kSampleFields[] = {
    {"Name", 0, 6, FieldKind::Text},        {"Count", 6, 2, FieldKind::Int16},
    {"Total", 8, 4, FieldKind::Int32},      {"Flag", 12, 2, FieldKind::Boolean},
    {"Amount", 14, 8, FieldKind::Currency}, {"When", 22, 8, FieldKind::Date},
    {"Rate", 30, 4, FieldKind::Single},     {"Ratio", 34, 8, FieldKind::Double},
    {"Small", 42, 1, FieldKind::Byte},
};
constexpr RecordLayout kSample{"Sample", kSampleFields, 43};
static_assert(kSample.Valid());
static_assert(kSample.Field("Amount").offset == 14);

constexpr FieldSpec kGap[] = {{"A", 0, 4, FieldKind::Text}, {"B", 5, 2, FieldKind::Int16}};
constexpr FieldSpec kWrongSize[] = {{"A", 0, 4, FieldKind::Int16}};
constexpr FieldSpec kTwice[] = {{"A", 0, 2, FieldKind::Text}, {"A", 2, 2, FieldKind::Text}};
static_assert(!RecordLayout("gap", kGap, 7).Valid());
static_assert(!RecordLayout("size", kWrongSize, 4).Valid());
static_assert(!RecordLayout("twice", kTwice, 4).Valid());
static_assert(!RecordLayout("short", kSampleFields, 44).Valid());
static_assert(contacts::kVendorRecord.Length() == 235);

}  // namespace

TEST(RecordLayout, NewRecordHoldsBlanksInTextAndZeroInNumbers) {
    Record r(kSample);
    EXPECT_EQ(r.Bytes(), std::string(6, ' ') + std::string(37, '\0'));
}

TEST(RecordLayout, FieldsArePackedLittleEndianAsTheFilesHoldThem) {
    Record r(kSample);
    r.SetText("Name", "Ab");
    r.SetInt16("Count", -2);
    r.SetInt32("Total", 0x01020304);
    r.SetBoolean("Flag", true);
    r.SetCurrency("Amount", 12345678);  // $1,234.5678
    r.SetDate("When", DateTime::FromYmd(2026, 6, 15));
    r.SetSingle("Rate", 1.5f);
    r.SetDouble("Ratio", 0.25);
    r.SetByte("Small", 200);
    const std::string& b = r.Bytes();
    EXPECT_EQ(b.substr(0, 6), "Ab    ");
    EXPECT_EQ(b.substr(6, 2), std::string("\xFE\xFF", 2));
    EXPECT_EQ(b.substr(8, 4), std::string("\x04\x03\x02\x01", 4));
    EXPECT_EQ(b.substr(12, 2), std::string("\xFF\xFF", 2));
    EXPECT_EQ(b.substr(14, 8), std::string("\x4E\x61\xBC\x00\x00\x00\x00\x00", 8));
    EXPECT_EQ(b.substr(30, 4), std::string("\x00\x00\xC0\x3F", 4));
    EXPECT_EQ(static_cast<unsigned char>(b[42]), 200);

    Record back(kSample, b);
    EXPECT_EQ(back.Text("Name"), "Ab    ");
    EXPECT_EQ(back.Trimmed("Name"), "Ab");
    EXPECT_EQ(back.Int16("Count"), -2);
    EXPECT_EQ(back.Int32("Total"), 0x01020304);
    EXPECT_TRUE(back.Boolean("Flag"));
    EXPECT_EQ(back.Currency("Amount"), 12345678);
    EXPECT_EQ(back.Date("When"), DateTime::FromYmd(2026, 6, 15));
    EXPECT_EQ(back.Single("Rate"), 1.5f);
    EXPECT_EQ(back.Double("Ratio"), 0.25);
    EXPECT_EQ(back.Byte("Small"), 200);
}

TEST(RecordLayout, TextLongerThanItsFieldIsCutAndAnsiBytesPassUnchanged) {
    Record r(kSample);
    r.SetText("Name", "Caf\xE9 Noir");
    EXPECT_EQ(r.Text("Name"), "Caf\xE9 N");
    EXPECT_EQ(r.Bytes().size(), 43u);
}

TEST(RecordLayout, DamagedNumbersInAFileAreTheOverflowFailure) {
    struct Case {
        const char* field;
        double stored;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    for (Case c : {Case{"When", nan}, Case{"When", inf}, Case{"When", 1e300}, Case{"Ratio", nan},
                   Case{"Ratio", -inf}}) {
        Record r(kSample);
        std::string bytes = r.Bytes();
        std::memcpy(bytes.data() + kSample.Field(c.field).offset, &c.stored, 8);
        Record damaged(kSample, bytes);
        EXPECT_EQ(ErrorOf([&] {
                      c.field == std::string("When") ? (void)damaged.Date(c.field)
                                                     : (void)damaged.Double(c.field);
                  }),
                  6)
            << c.field << " " << c.stored;
    }
}

TEST(RecordLayout, RecordsRoundTripThroughARandomAccessFileAndShortReadsAreZeroFilled) {
    TestFolder folder;
    Record first(kSample);
    first.SetText("Name", "One");
    Record second(kSample);
    second.SetText("Name", "Two");
    second.SetInt16("Count", 7);
    int n = FreeFile();
    Open(n, AppFolder() + "/sample.dat", OpenMode::Random, static_cast<int>(kSample.Length()));
    PutRecord(n, 1, first);
    PutRecord(n, 2, second);
    EXPECT_EQ(GetRecord(n, 2, kSample).Int16("Count"), 7);
    EXPECT_EQ(GetRecord(n, 1, kSample).Trimmed("Name"), "One");
    Close(n);
    EXPECT_EQ(folder.Read("sample.dat"), first.Bytes() + second.Bytes());

    // Records of the file shorter than the layout: the read is refused, as the platform does.
    n = FreeFile();
    Open(n, AppFolder() + "/sample.dat", OpenMode::Random, 4);
    EXPECT_THROW(
        try { GetRecord(n, 1, kSample); } catch (const RuntimeError& e) {
            EXPECT_EQ(e.Number(), err::BadRecordLength);
            throw;
        },
        RuntimeError);
    Close(n);

    Record cut(kSample, "Thr");
    EXPECT_EQ(cut.Text("Name"), std::string("Thr\0\0\0", 6));
    EXPECT_EQ(cut.Int32("Total"), 0);
}
