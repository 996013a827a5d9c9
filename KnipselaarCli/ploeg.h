#pragma once

// Taken naast elkaar uitvoeren en hun uitslagen toch op volgorde krijgen.

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace cli {

/// Voert taak 0 tot aantal uit op hoogstens zoveel draden, die van de aanroeper meegerekend (minder als het
/// systeem er niet meer geeft), en geeft elke uitslag op volgorde aan meld, in de draad van de aanroeper.
/// Stopt met nieuwe taken zodra magVerder nee zegt of meld iets gooit; wat loopt wordt nog afgemaakt.
template <typename Uitslag>
class Ploeg {
  public:
    using Doe = std::function<Uitslag(std::size_t)>;
    using Meld = std::function<void(std::size_t, Uitslag&&)>;

    Ploeg(std::size_t aantal, Doe doe, std::function<bool()> magVerder)
        : uitslagen_(aantal), doe_(std::move(doe)), magVerder_(std::move(magVerder)) {}
    Ploeg(const Ploeg&) = delete;
    Ploeg& operator=(const Ploeg&) = delete;
    ~Ploeg() { stop_ = true; }

    /// Gaat één keer.
    void werk(std::size_t draden, const Meld& meld) {
        const std::size_t helpers = draden < 2 ? 0 : draden - 1;
        bezig_ = helpers;
        neemHelpers(helpers);
        for (std::size_t i = 0; i < uitslagen_.size(); ++i) {
            // Wie op een ander wacht, doet intussen zelf iets: een draad die niets anders doet dan melden,
            // zou bij elk bestand een werkende van zijn plaats halen.
            while (!isKlaar(i) && doeVolgende()) {
            }
            std::optional<Uitslag> uitslag = wachtOp(i);
            if (!uitslag) {
                return;
            }
            meld(i, std::move(*uitslag));
        }
    }

  private:
    /// Geeft het systeem er geen draad meer bij, dan doen die er zijn het werk.
    void neemHelpers(std::size_t aantal) {
        draden_.reserve(aantal);
        try {
            while (draden_.size() < aantal) {
                draden_.emplace_back([this] { werkMee(); });
            }
        } catch (const std::system_error&) {
            const std::lock_guard slot(slot_);
            bezig_ -= aantal - draden_.size();
        }
    }

    void werkMee() {
        while (doeVolgende()) {
        }
        const std::lock_guard slot(slot_);
        --bezig_;
        klaar_.notify_one();
    }

    /// Doet de volgende taak; nee als er geen meer is of komt.
    bool doeVolgende() {
        if (stop_ || !magVerder_()) {
            return false;
        }
        const std::size_t i = volgende_++;
        if (i >= uitslagen_.size()) {
            return false;
        }
        Uitslag uitslag = doe_(i);
        const std::lock_guard slot(slot_);
        uitslagen_[i] = std::move(uitslag);
        if (i == verwacht_) {
            klaar_.notify_one();
        }
        return true;
    }

    bool isKlaar(std::size_t i) {
        const std::lock_guard slot(slot_);
        return uitslagen_[i].has_value();
    }

    /// De uitslag van een taak; niets als geen draad haar meer doet.
    std::optional<Uitslag> wachtOp(std::size_t i) {
        std::unique_lock slot(slot_);
        verwacht_ = i;
        klaar_.wait(slot, [&] { return uitslagen_[i].has_value() || bezig_ == 0; });
        return std::exchange(uitslagen_[i], std::nullopt);
    }

    std::vector<std::optional<Uitslag>> uitslagen_;
    Doe doe_;
    std::function<bool()> magVerder_;
    std::atomic<std::size_t> volgende_{0};
    std::atomic<bool> stop_{false};
    std::mutex slot_;
    std::condition_variable klaar_;
    std::size_t verwacht_ = 0;
    std::size_t bezig_ = 0;             ///< draden behalve die van de aanroeper
    std::vector<std::jthread> draden_;  ///< het laatst, dus het eerst opgeruimd: ze gebruiken al het andere
};

}  // namespace cli
