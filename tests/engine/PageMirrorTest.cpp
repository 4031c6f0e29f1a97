// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PageMirror.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace velor {

namespace {

QVariantMap Told(const char *json) {
  return QJsonDocument::fromJson(json).object().toVariantMap();
}

class MirrorOfAPage : public ::testing::Test {
 protected:
  MirrorOfAPage() { mirror_.Apply(Told(R"({"revision": 7, "html": "one two three"})")); }
  std::string Html() const { return mirror_.Html().toStdString(); }

  PageMirror mirror_;
};

TEST_F(MirrorOfAPage, FollowsTheStepsFromTheTextThatItHas) {
  EXPECT_TRUE(mirror_.Apply(Told(R"({"revision": 9, "steps":
      [[[0, 3, "1"], [8, 5, "3"]], [[1, 0, "st"]]]})")));
  EXPECT_EQ(Html(), "1st two 3");
  EXPECT_EQ(mirror_.Revision(), 9);
}

TEST_F(MirrorOfAPage, PassesOverStepsThatItHasFollowed) {
  EXPECT_TRUE(mirror_.Apply(Told(R"({"revision": 8, "steps": [[[0, 3, "1"]]]})")));
  EXPECT_TRUE(mirror_.Apply(Told(R"({"revision": 9, "steps": [[[0, 3, "1"]], [[2, 3, "2"]]]})")));
  EXPECT_EQ(Html(), "1 2 three");
  EXPECT_TRUE(mirror_.Apply(Told(R"({"revision": 8, "steps": [[[0, 3, "1"]]]})")));
  EXPECT_EQ(Html(), "1 2 three");
  EXPECT_EQ(mirror_.Revision(), 9);
}

TEST_F(MirrorOfAPage, LetsGoOfWhatDoesNotFollowOn) {
  EXPECT_FALSE(mirror_.Apply(Told(R"({"revision": 9, "steps": [[[0, 3, "1"]]]})")));
  EXPECT_FALSE(mirror_.Apply(Told(R"({"revision": 8, "steps": [[[0, 99, "1"]]]})")));
  EXPECT_FALSE(mirror_.Apply(Told(R"({"revision": 8, "steps": [[[5, 1, "1"], [2, 1, "1"]]]})")));
  EXPECT_EQ(Html(), "one two three");
  EXPECT_EQ(mirror_.Revision(), 7);
}

TEST_F(MirrorOfAPage, FollowsNothingButTheWholeWhenDetached) {
  mirror_.ForgetRevision();
  EXPECT_FALSE(mirror_.Apply(Told(R"({"revision": 8, "steps": [[[0, 3, "1"]]]})")));
  EXPECT_TRUE(mirror_.Apply(Told(R"({"revision": 3, "html": "another"})")));
  EXPECT_EQ(Html(), "another");
}

TEST_F(MirrorOfAPage, KeepsItsTextWhereNothingDiffersAfterAll) {
  const QString before = mirror_.Html();
  EXPECT_TRUE(mirror_.Apply(Told(R"({"revision": 8, "steps": [[[0, 3, "one"]]]})")));
  EXPECT_EQ(mirror_.Html().constData(), before.constData());
}

}  // namespace

}  // namespace velor
