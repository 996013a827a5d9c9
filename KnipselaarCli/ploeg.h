#pragma once

// Taken naast elkaar uitvoeren en hun uitslagen toch op volgorde krijgen.

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace cli {

/// Voert taak 0 tot aantal uit op hoogstens zoveel draden, en geeft elke uitslag op volgorde aan meld, in de
/// draad van de aanroeper. Stopt met nieuwe taken zodra magVerder nee zegt of meld iets gooit; wat loopt
/// wordt nog afgemaakt.
template <typename Uitslag>
class Ploeg {
  public:
    using Doe = std::function<Uitslag(std::size_t)>;
    using Meld = std::function<void(std::size_t, const Uitslag&)>;

    Ploeg(std::size_t aantal, Doe doe, std::function<bool()> magVerder)
        : uitslagen_(aantal), doe_(std::move(doe)), magVerder_(std::move(magVerder)) {}
    Ploeg(const Ploeg&) = delete;
    Ploeg& operator=(const Ploeg&) = delete;
    ~Ploeg() { stop_ = true; }

    void werk(std::size_t draden, const Meld& meld) {
        if (draden < 2) {
            for (std::size_t i = 0; i < uitslagen_.size() && magVerder_(); ++i) {
                meld(i, doe_(i));
            }
            return;
        }
        for (std::size_t i = 0; i < draden; ++i) {
            draden_.emplace_back([this] { werkMee(); });
        }
        for (std::size_t i = 0; i < uitslagen_.size(); ++i) {
            const std::optional<Uitslag> uitslag = wachtOp(i, draden);
            if (!uitslag) {
                return;
            }
            meld(i, *uitslag);
        }
    }

  private:
    void werkMee() {
        for (std::size_t i = volgende_++; i < uitslagen_.size() && !stop_ && magVerder_(); i = volgende_++) {
            Uitslag uitslag = doe_(i);
            const std::lock_guard slot(slot_);
            uitslagen_[i] = std::move(uitslag);
            if (i == verwacht_) {
                klaar_.notify_one();
            }
        }
        const std::lock_guard slot(slot_);
        ++gestopt_;
        klaar_.notify_one();
    }

    /// De uitslag van een taak; niets als geen draad haar meer doet.
    std::optional<Uitslag> wachtOp(std::size_t i, std::size_t draden) {
        std::unique_lock slot(slot_);
        verwacht_ = i;
        klaar_.wait(slot, [&] { return uitslagen_[i].has_value() || gestopt_ == draden; });
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
    std::size_t gestopt_ = 0;
    std::vector<std::jthread> draden_;  ///< het laatst, dus het eerst opgeruimd: ze gebruiken al het andere
};

}  // namespace cli
