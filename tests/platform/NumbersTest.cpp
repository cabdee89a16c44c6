// The platform's rules for numbers in text, one table for the test of a number, one for Val
// and one for the numbers of data files.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/RuntimeError.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::ErrorOf;
using testing_support::TestFolder;

namespace {

struct NumberCase {
    std::string text;
    bool numeric;
    double value;  // when numeric
};

}  // namespace

TEST(Numbers, WhatCountsAsANumber) {
    const NumberCase cases[] = {
        {"123", true, 123},
        {"  12.5  ", true, 12.5},
        {"-7", true, -7},
        {"+.5", true, 0.5},
        {"1.", true, 1},
        {"1e5", true, 100000},
        {"1d5", true, 100000},
        {"2.5E-1", true, 0.25},
        {"1D+2", true, 100},
        {"&H10", true, 16},
        {"&h1f", true, 31},
        {"&O17", true, 15},
        {"&HFFFF", true, -1},  // four hexadecimal digits are a 16-bit value
        {"&H8000", true, -32768},
        {"&H10000", true, 65536},
        {"&HFFFFFFFF", true, -1},
        {"$1,234.50", true, 1234.5},
        {"(12)", true, -12},
        {"1,2,3", true, 123},
        // Not numbers: the forms of other languages' parsers, and half-made numbers.
        {"Nan", false, 0},
        {"nan", false, 0},
        {"inf", false, 0},
        {"-Infinity", false, 0},
        {"infinity", false, 0},
        {"0x1A", false, 0},
        {"", false, 0},
        {"   ", false, 0},
        {".", false, 0},
        {"-", false, 0},
        {"1e", false, 0},
        {"e5", false, 0},
        {"1 2", false, 0},
        {"--1", false, 0},
        {"12abc", false, 0},
        {"&H", false, 0},
        {"&HG", false, 0},
        {"&O8", false, 0},
        {"&H100000000", false, 0},  // past 32 bits
        {"1e400", false, 0},        // past the range of a double
        {std::string("1\0", 2), false, 0},
        {"(12", false, 0},
        {",1", false, 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(IsNumeric(c.text), c.numeric) << '"' << c.text << '"';
        double value = 0;
        if (c.numeric) {
            ASSERT_EQ(ParseNumber(c.text, value), NumberText::Number) << c.text;
            EXPECT_EQ(value, c.value) << c.text;
        }
    }
    double value = 0;
    EXPECT_EQ(ParseNumber("1e400", value), NumberText::Overflow);
    EXPECT_EQ(ParseNumber("&H100000000", value), NumberText::Overflow);
    EXPECT_EQ(ParseNumber("1e-400", value), NumberText::Number);
    EXPECT_EQ(value, 0);
}

TEST(Numbers, ValReadsAsFarAsTheNumberGoes) {
    const struct {
        std::string text;
        double value;
    } cases[] = {
        {"1440", 1440},
        {" 1 4 4 0 ", 1440},  // blanks anywhere are skipped
        {"\t12\n5", 125},
        {"12abc", 12},
        {"1,234", 1},  // a comma ends the number
        {"1.2.3", 1.2},
        {"-3.5e2x", -350},
        {"2d3", 2000},
        {"1e", 1},
        {"1e+", 1},
        {"- 5", -5},
        {"&H10", 16},
        {"&HFFFF", -1},
        {"&O17", 15},
        {"&H", 0},
        {"&", 0},
        {"$5", 0},
        {"nan", 0},
        {"inf", 0},
        {"Infinity", 0},
        {"0x1A", 0},
        {"", 0},
        {".", 0},
        {std::string("12\0"
                     "3",
                     4),
         12},
    };
    for (const auto& c : cases) EXPECT_EQ(Val(c.text), c.value) << '"' << c.text << '"';
    EXPECT_EQ(ErrorOf([] { Val("1e400"); }), err::Overflow);
    EXPECT_EQ(ErrorOf([] { Val("&H1FFFFFFFF"); }), err::Overflow);
}

TEST(Numbers, ConversionsToSmallIntegersRoundHalfToEvenAndOverflow) {
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(3.5), 4);
    EXPECT_EQ(CInt(-32768.4), -32768);
    EXPECT_EQ(CLng(2147483647.0), 2147483647);
    EXPECT_EQ(CByte(255.4), 255);
    EXPECT_EQ(ErrorOf([] { CInt(32767.5); }), err::Overflow);
    EXPECT_EQ(ErrorOf([] { CByte(-1); }), err::Overflow);
    EXPECT_EQ(ErrorOf([] { CLng(std::nan("")); }), err::Overflow);
    EXPECT_EQ(ErrorOf([] { CInt(HUGE_VAL); }), err::Overflow);
}

TEST(Numbers, DataFileNumbersFollowTheSameRules) {
    const struct {
        std::string field;
        int error;  // 0: read as `value`
        double value;
    } cases[] = {
        {"12", 0, 12},
        {" 7 ", 0, 7},
        {"", 0, 0},  // an empty number reads as 0
        {"#TRUE#", 0, -1},
        {"\"12\"", 0, 12},
        {"&H10", 0, 16},
        {"1d5", 0, 100000},
        {"nan", err::TypeMismatch, 0},
        {"inf", err::TypeMismatch, 0},
        {"-infinity", err::TypeMismatch, 0},
        {"0x1A", err::TypeMismatch, 0},
        {std::string("1\0", 2), err::TypeMismatch, 0},
        {"\"eight\"", err::TypeMismatch, 0},
        {"1e400", err::Overflow, 0},
    };
    TestFolder folder;
    for (const auto& c : cases) {
        folder.Write("n.txt", c.field + "\r\n");
        const int n = FreeFile();
        Open(n, AppFolder() + "/n.txt", OpenMode::Input);
        double value = -99;
        EXPECT_EQ(ErrorOf([&] { value = InputNumber(n); }), c.error) << c.field;
        if (c.error == 0) {
            EXPECT_EQ(value, c.value) << c.field;
        }
        CloseAll();
    }
    // Into a 16-bit variable: past its range is Overflow, never a wrapped value.
    folder.Write("n.txt", "32768\r\n&H8000\r\n");
    const int n = FreeFile();
    Open(n, AppFolder() + "/n.txt", OpenMode::Input);
    EXPECT_EQ(ErrorOf([&] { InputInt16(n); }), err::Overflow);
    EXPECT_EQ(InputInt16(n), -32768);
    CloseAll();
}
