#include "KnipselaarCli/links.h"

#include <algorithm>
#include <deque>
#include <filesystem>

#include "Knipselaar/kern/systeem/kenmerken.h"
#include "Knipselaar/kern/systeem/paden.h"

namespace cli {

namespace {

namespace fs = std::filesystem;

/// Zoveel links achter elkaar volgt ook het systeem niet meer.
constexpr int meesteLinks = 40;

class Volger {
  public:
    explicit Volger(const std::string& boom) : boom_(boom) {}

    Linkweg volg(const fs::path& pad) {
        hier_ = pad.parent_path();
        teGaan_.push_back(pad.filename());
        while (!teGaan_.empty()) {
            const fs::path stap = teGaan_.front();
            teGaan_.pop_front();
            weg_.uitkomst = zet(stap);
            if (weg_.uitkomst != Linkuitkomst::binnen) {
                break;
            }
        }
        return std::move(weg_);
    }

  private:
    Linkuitkomst zet(const fs::path& stap) {
        if (stap.empty() || stap == ".") {
            return Linkuitkomst::binnen;
        }
        if (stap == "..") {
            const bool kan = !hier_.empty();
            hier_ = hier_.parent_path();
            return kan ? Linkuitkomst::binnen : Linkuitkomst::erbuiten;
        }
        const fs::path nieuw = hier_ / stap;
        const std::string heel = kern::plak(boom_, nieuw.generic_string());
        kern::Kenmerken kenmerken;
        if (kern::leesEigenKenmerken(heel, kenmerken)) {
            return Linkuitkomst::nergens;
        }
        if (links_ > 0) {
            weg_.langs.push_back(nieuw.generic_string());
        }
        if (kenmerken.soort == kern::Bestandssoort::link) {
            return neemLink(heel);
        }
        hier_ = nieuw;
        return Linkuitkomst::binnen;
    }

    Linkuitkomst neemLink(const std::string& heel) {
        const fs::path doel = kern::leesLink(heel);
        if (++links_ > meesteLinks) {
            return Linkuitkomst::nergens;
        }
        if (doel.is_absolute()) {
            return Linkuitkomst::erbuiten;
        }
        teGaan_.insert(teGaan_.begin(), doel.begin(), doel.end());
        return Linkuitkomst::binnen;
    }

    const std::string& boom_;
    fs::path hier_;  ///< ten opzichte van de boom; leeg is de boom zelf
    std::deque<fs::path> teGaan_;
    int links_ = 0;
    Linkweg weg_;
};

}  // namespace

Linkweg volgLink(const std::string& boom, const std::string& pad) {
    return Volger(boom).volg(pad);
}

std::string keurLink(const std::string& boom, const std::string& pad,
                     const std::function<bool(const std::string&)>& gaatMee) {
    const Linkweg weg = volgLink(boom, pad);
    switch (weg.uitkomst) {
        case Linkuitkomst::erbuiten:
            return "die buiten " + boom + " uitkomt";
        case Linkuitkomst::nergens:
            return "die nergens heen wijst";
        case Linkuitkomst::binnen:
            break;
    }
    const auto achter = std::find_if_not(weg.langs.begin(), weg.langs.end(), gaatMee);
    return achter == weg.langs.end() ? std::string()
                                     : "naar " + kern::plak(boom, *achter) + ", en dat gaat niet mee";
}

}  // namespace cli
