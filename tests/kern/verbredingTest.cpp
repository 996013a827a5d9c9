// ISO 8859-1 in UTF-8, op elke manier die deze processor kent.

#include "Knipselaar/kern/processor/verbreding.h"

#include <gtest/gtest.h>
#include <wx/string.h>

#include <algorithm>
#include <random>
#include <string>

#include "tests/hulp/bestanden.h"

namespace {

class Verbreding : public testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        verbreed_ = GetParam() ? kern::zoekSnelleVerbreder() : kern::verbreedPerByte;
        if (verbreed_ == nullptr) {
            GTEST_SKIP() << "deze processor kent maar één manier";
        }
    }

    /// Hoeveel bytes er voor de eerste CR of NUL staan.
    static std::size_t telGewone(const std::string& bytes) {
        return std::min(bytes.find_first_of(std::string("\r\0", 2)), bytes.size());
    }

    /// Wat de toolkit ervan maakt: elke byte is het teken met dat nummer.
    static std::string verwacht(const std::string& bytes) {
        std::string uit;
        for (const char byte : bytes.substr(0, telGewone(bytes))) {
            uit += wxString(wxUniChar(int{static_cast<unsigned char>(byte)})).utf8_string();
        }
        return uit;
    }

    /// Zet om in precies zoveel plaats als er moet zijn, en kijkt of daarbuiten alles blijft staan.
    std::string zetOm(const std::string& bytes) const {
        const std::string rand(64, '~');
        const std::size_t plaats = 2 * bytes.size();
        std::string doel = rand + std::string(plaats, '?') + rand;
        char* begin = doel.data() + rand.size();
        char* einde = begin;
        EXPECT_EQ(telGewone(bytes), verbreed_(bytes, einde)) << hulp::toonBytes(bytes);
        const auto lengte = static_cast<std::size_t>(einde - begin);
        EXPECT_TRUE(doel.starts_with(rand) && doel.ends_with(rand)) << hulp::toonBytes(bytes);
        EXPECT_LE(lengte, 2 * bytes.size());
        return doel.substr(rand.size(), lengte);
    }

  private:
    kern::Verbreder verbreed_ = nullptr;
};

}  // namespace

TEST_P(Verbreding, KentElkeByteOpElkePlek) {
    for (int waarde = 0; waarde < 256; ++waarde) {
        for (std::size_t plek = 0; plek < 35; ++plek) {
            for (const char rest : {'a', '\xE9'}) {
                std::string bytes(35, rest);
                bytes[plek] = static_cast<char>(waarde);
                ASSERT_EQ(verwacht(bytes), zetOm(bytes)) << waarde << " op " << plek;
            }
        }
    }
}

TEST_P(Verbreding, KentElkeLengteEnElkMengsel) {
    std::mt19937 toeval(8859);  // NOLINT(cert-msc51-cpp): vaste reeks
    for (std::size_t lengte = 0; lengte < 100; ++lengte) {
        for (int keer = 0; keer < 50; ++keer) {
            std::string bytes(lengte, '\0');
            // Meestal zonder CR en NUL: anders staat er al bijna vooraan een.
            std::uniform_int_distribution<int> byte(keer % 5 == 0 ? 0 : 14, 255);
            std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(byte(toeval)); });
            ASSERT_EQ(verwacht(bytes), zetOm(bytes)) << hulp::toonBytes(bytes);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, Verbreding, testing::Bool(), [](const auto& geval) {
    return geval.param ? std::string("PerVak") : std::string("PerByte");
});
