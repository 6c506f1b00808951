#include "aspect/echelle.h"

#include <gtest/gtest.h>

namespace {

TEST(Echelle, SBaisseJustePourQueLesFormesTiennent)
{
    // Enough room, whatever the scale.
    EXPECT_EQ(facteurQuiTient({1366, 768}, 1), 1);
    EXPECT_EQ(facteurQuiTient({1920, 1080}, 2), 1);
    // 1920 x 1080 at 200 %.
    const double facteur = facteurQuiTient({960, 540}, 2);
    EXPECT_GE(960 / facteur, ecranDeClub.width() - 0.01);
    EXPECT_GE(540 / facteur, ecranDeClub.height() - 0.01);
    EXPECT_GT(facteur, 0.7);
    // The narrower side decides.
    EXPECT_DOUBLE_EQ(facteurQuiTient({1366, 384}, 4), 0.5);
    // Texts never get smaller than without any scale.
    EXPECT_DOUBLE_EQ(facteurQuiTient({683, 384}, 2) * 2, 1);
    EXPECT_DOUBLE_EQ(facteurQuiTient({512, 300}, 2) * 2, 1);
    EXPECT_EQ(facteurQuiTient({1024, 600}, 1), 1);
    EXPECT_EQ(facteurQuiTient({1024, 600}, 0.8), 1);
}

} // namespace
