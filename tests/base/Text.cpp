#include "base/Text.h"

#include <gtest/gtest.h>

namespace {

TEST(Text, TakesForLatin1WhatIsNotUtf8)
{
    const struct {
        std::string what, text, utf8;
    } rows[] = {
        {"nothing", "", ""},
        {"every length", "a\u00F6\u20AC\U0001D11E", "a\u00F6\u20AC\U0001D11E"},
        {"Latin-1", "Sch\xF6ntal", "Sch\u00F6ntal"},
        {"cut short", "\u20AC\xE2\x82", "\u00E2\u0082\u00AC\u00E2\u0082"},
        {"only what follows a beginning", "\x80", "\u0080"},
        {"longer than need be", "\xC0\xAF", "\u00C0\u00AF"},
        {"half of a pair", "\xED\xA0\x80", "\u00ED\u00A0\u0080"},
        {"beyond the last", "\xF4\x90\x80\x80", "\u00F4\u0090\u0080\u0080"},
        {"no beginning at all", "\xFF", "\u00FF"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(toUtf8(row.text), row.utf8) << row.what;
    EXPECT_EQ(lowerCase("A\u00D6z[Z"), "a\u00D6z[z");
}

} // namespace
