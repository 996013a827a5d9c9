#include "KnipselaarCli/ploeg.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <chrono>
#include <numeric>
#include <semaphore>
#include <thread>
#include <vector>

using namespace std::chrono_literals;

namespace {

using Ploeg = cli::Ploeg<std::size_t>;

}  // namespace

TEST(CliPloeg, MeldtElkeUitslagOpVolgorde) {
    for (const std::size_t draden : {0U, 1U, 2U, 5U}) {
        std::vector<std::size_t> gemeld;
        Ploeg ploeg(
            100, [](std::size_t i) { return 3 * i; }, [] { return true; });
        ploeg.werk(draden, [&gemeld](std::size_t i, std::size_t uitslag) {
            EXPECT_EQ(3 * i, uitslag);
            gemeld.push_back(i);
        });
        std::vector<std::size_t> verwacht(100);
        std::iota(verwacht.begin(), verwacht.end(), 0U);
        EXPECT_EQ(verwacht, gemeld) << draden;
    }
}

TEST(CliPloeg, GaatVerderMetDeDradenDieErZijn) {
    pthread_attr_t gewoon{};
    pthread_attr_t onmogelijk{};
    ASSERT_EQ(0, pthread_getattr_default_np(&gewoon));
    ASSERT_EQ(0, pthread_attr_init(&onmogelijk));
    ASSERT_EQ(0, pthread_attr_setstacksize(&onmogelijk, std::size_t{1} << 46U));
    ASSERT_EQ(0, pthread_setattr_default_np(&onmogelijk));
    EXPECT_THROW(std::thread([] {}), std::system_error);
    std::size_t gemeld = 0;
    Ploeg ploeg(
        100, [](std::size_t i) { return i; }, [] { return true; });
    ploeg.werk(8, [&gemeld](std::size_t, std::size_t) { ++gemeld; });
    EXPECT_EQ(100U, gemeld);
    pthread_setattr_default_np(&gewoon);
    pthread_attr_destroy(&onmogelijk);
    pthread_attr_destroy(&gewoon);
}

TEST(CliPloeg, BegintNietsMeerAlsHetNietVerderMag) {
    std::size_t gedaan = 0;
    std::size_t gemeld = 0;
    Ploeg ploeg(
        100, [&gedaan](std::size_t i) { return ++gedaan, i; }, [&gedaan] { return gedaan < 3; });
    ploeg.werk(1, [&gemeld](std::size_t, std::size_t) { ++gemeld; });
    EXPECT_EQ(3U, gedaan);
    EXPECT_EQ(3U, gemeld);
}

// De tweede taak duurt tot de eerste gemeld is. Wordt de melder niet gewekt, dan wachten ze op elkaar.
TEST(CliPloeg, MeldtEenUitslagOokAlsDeHelperMeteenVerderGaat) {
    const auto melder = std::this_thread::get_id();
    for (int ronde = 0; ronde < 20; ++ronde) {
        std::binary_semaphore helperBezig(0);
        std::binary_semaphore melderWacht(0);
        std::binary_semaphore eersteGemeld(0);
        const auto doe = [&](std::size_t i) {
            if (i == 0) {
                helperBezig.release();
                melderWacht.acquire();
            } else {
                EXPECT_TRUE(eersteGemeld.try_acquire_for(20s)) << "ronde " << ronde;
            }
            return i;
        };
        const auto magVerder = [&] {
            if (std::this_thread::get_id() != melder) {
                return true;
            }
            helperBezig.acquire();
            melderWacht.release();
            return false;
        };
        Ploeg ploeg(2, doe, magVerder);
        ploeg.werk(2, [&](std::size_t i, std::size_t) {
            if (i == 0) {
                eersteGemeld.release();
                helperBezig.release();
            }
        });
        ASSERT_FALSE(HasFailure());
    }
}
