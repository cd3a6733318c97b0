#include "tuning/spellNotes.h"

#include "tuning/FollowingMeantone.h"

#include <gmock/gmock.h>

namespace velmora {

using testing::Each;
using testing::ElementsAre;
using testing::Optional;

TEST(SpellNotes, SpellsEachNoteAsItEnds)
{
    // A dominant and a tonic of A flat, with a rest between them that has no length.
    const TimedKey keys[] = {{2.0, 3.0, 56}, {0.0, 2.0, 63}, {0.0, 2.0, 67}, {0.0, 2.0, 70},
                             {0.0, 2.0, 61}, {2.0, 3.0, 60}, {2.0, 3.0, 63}, {3.0, 3.0, 68}};
    FollowingMeantone following;
    EXPECT_THAT(spellNotes(keys, following),
                ElementsAre(Optional(-4), Optional(-3), Optional(1), Optional(-2), Optional(-5),
                            Optional(0), Optional(-3), Optional(-4)));
    EXPECT_FALSE(following.follower().isHeld(8));

    Temperament meantone = Temperament::Meantone();
    EXPECT_THAT(spellNotes(keys, meantone), Each(std::optional<int>()));
}

} // namespace velmora
