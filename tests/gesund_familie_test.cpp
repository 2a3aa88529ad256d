// The family rule of the health base for L134 to L143: equality and isEqual through the base, with their
// deliberate asymmetry, for every one of the eight classes.
#include "health/qbFormularL134.h"
#include "health/qbFormularL135.h"
#include "health/qbFormularL137.h"
#include "health/qbFormularL138.h"
#include "health/qbFormularL139.h"
#include "health/qbFormularL141.h"
#include "health/qbFormularL142.h"
#include "health/qbFormularL143.h"

#include "gesund_test_util.h"

using namespace qbtest;

namespace {

template <class F>
class GesundFamilie : public ::testing::Test {};
using Klassen = ::testing::Types<qbFormularL134, qbFormularL135, qbFormularL137, qbFormularL138,
                                 qbFormularL139, qbFormularL141, qbFormularL142, qbFormularL143>;
TYPED_TEST_SUITE(GesundFamilie, Klassen);

} // namespace

TYPED_TEST(GesundFamilie, KrankheitFilledOnTheLeftOnlyMakesOperatorEqualFalseAndIsEqualTrue_Quirk) {
    TypeParam links, rechts;
    links.RefPersonenKennung("VP1");
    rechts.RefPersonenKennung("VP1");
    links.RefKrankheit("Asthma");
    EXPECT_FALSE(links == rechts);
    EXPECT_TRUE(links.isEqual(&rechts));
    EXPECT_TRUE(rechts == links);
    EXPECT_FALSE(rechts.isEqual(&links));
}

TYPED_TEST(GesundFamilie, AnEmptyAntwortZuFrageMatchesAnyForIsEqualButOnlyOnTheLeftForOperatorEqual_Quirk) {
    TypeParam links, rechts;
    links.RefPersonenKennung("VP2");
    rechts.RefPersonenKennung("VP2");
    rechts.RefAntwortZuFrage("Frage 2");
    EXPECT_TRUE(links == rechts);
    EXPECT_TRUE(links.isEqual(&rechts));
    EXPECT_FALSE(rechts == links);
    EXPECT_TRUE(rechts.isEqual(&links));
    links.RefAntwortZuFrage("Frage 1");
    EXPECT_FALSE(links == rechts);
    EXPECT_FALSE(links.isEqual(&rechts));
}

TYPED_TEST(GesundFamilie, OwnFieldsDoNotCountAndPieceAndPersonDo) {
    TypeParam a, b;
    a.RefPersonenKennung("VP1");
    b.RefPersonenKennung("VP1");
    fuelleAlle(b, {&TypeParam::felder()});
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.isEqual(&b));
    b.RefPersonenKennung("VP2");
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(a.isEqual(&b));
}
