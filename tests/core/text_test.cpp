// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "text.h"

#include "fake_tree.h"

#include <gtest/gtest.h>

namespace {

using lxpm::leadingNumber;
using lxpm::readFile;
using lxpm::takeUpTo;

TEST(ReadFile, YieldsTheContents) {
    FakeTree tree;
    tree.write("/file", "some text\n");
    char buffer[64];
    EXPECT_EQ(readFile((std::string(tree.root()) + "/file").c_str(), buffer), "some text\n");
}

TEST(ReadFile, StopsAtTheEndOfTheBuffer) {
    FakeTree tree;
    tree.write("/file", "some text\n");
    char buffer[5] = {'-', '-', '-', '-', '-'};
    EXPECT_EQ(readFile((std::string(tree.root()) + "/file").c_str(), std::span(buffer, 4)), "some");
    EXPECT_EQ(buffer[4], '-');
}

TEST(ReadFile, IsEmptyWithoutAFile) {
    FakeTree tree;
    char buffer[64];
    EXPECT_EQ(readFile((std::string(tree.root()) + "/file").c_str(), buffer), "");
    EXPECT_EQ(readFile(tree.root(), buffer), "") << "a directory can be opened, but not read";
}

TEST(LeadingNumber, EndsAtTheFirstOtherCharacter) {
    EXPECT_EQ(leadingNumber("48K\n").value, 48);
    EXPECT_EQ(leadingNumber("48K\n").rest, "K\n");
    EXPECT_EQ(leadingNumber("-1").value, -1);
    EXPECT_EQ(leadingNumber("-1").rest, "");
}

TEST(LeadingNumber, IsZeroWhereThereIsNone) {
    EXPECT_EQ(leadingNumber("").value, 0);
    EXPECT_EQ(leadingNumber("max").value, 0);
    EXPECT_EQ(leadingNumber("max").rest, "max");
    EXPECT_EQ(leadingNumber("99999999999999999999").value, 0);
}

TEST(TakeUpTo, SplitsAtEachSeparator) {
    std::string_view text = "a:bc::d";
    EXPECT_EQ(takeUpTo(':', text), "a");
    EXPECT_EQ(takeUpTo(':', text), "bc");
    EXPECT_EQ(takeUpTo(':', text), "");
    EXPECT_EQ(takeUpTo(':', text), "d");
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(takeUpTo(':', text), "");
}

} // namespace
