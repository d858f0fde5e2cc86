#include <gtest/gtest.h>

#include <tools/dxmd/check/Tags.h>

#include "RunTool.h"

using namespace dxmd_test;
using dxmd_tool::Tags;

TEST(Tags, ElementsAreNumberedInDocumentOrder) {
  const Tags tags("<?xml version='1.0'?>\n<a x='1'><b/><c>d</c></a>\n");
  EXPECT_EQ("<a x='1'><b/><c>d</c></a>", tags.textOf(0));
  EXPECT_EQ("<b/>", tags.textOf(1));
  EXPECT_EQ("<c>d</c>", tags.textOf(2));
  EXPECT_EQ(2u, tags.depth());
}

TEST(Tags, WhatOnlyLooksLikeATagIsNone) {
  const Tags tags("<!-- <x> --><?p <x> ?><a b='</a><x>' c=\"'>\"><![CDATA[<x></a>]]><d e='/>'>></d></a><!--</a>-->");
  EXPECT_EQ("<a b='</a><x>' c=\"'>\"><![CDATA[<x></a>]]><d e='/>'>></d></a>", tags.textOf(0));
  EXPECT_EQ("<d e='/>'>></d>", tags.textOf(1));
}

TEST(Tags, PlacesCountLinesAndCharacters) {
  const Tags tags("<a>\r\n <b/>\xC3\xA9\xE6\x9D\xB1\xF0\x9F\x98\x80<c/>\n\n<d\n/><e/></a>");
  const std::vector<Tags::Place> places = tags.placesOf({0, 1, 2, 2, 3, 4});
  const std::vector<std::pair<std::size_t, std::size_t>> expected{{1, 1}, {2, 2}, {2, 9}, {2, 9}, {4, 1}, {5, 3}};
  ASSERT_EQ(expected.size(), places.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(expected[i].first, places[i].line) << i;
    EXPECT_EQ(expected[i].second, places[i].column) << i;
  }
}

TEST(Tags, DepthIsThatOfTheDeepestElement) {
  EXPECT_EQ(100001u, Tags("<r><a/>" + repeated(100000, "<a>") + repeated(100000, "</a>") + "</r>").depth());
}
