#pragma once

// Een schijf die gauw vol is.

#include <filesystem>

namespace hulp {

/// Een bestandssysteem van 300 kB, aangekoppeld zolang dit object er is. Alleen root mag er een maken.
class KleineSchijf {
  public:
    /// @param plaats  een directory; ontstaat als zij er niet is.
    explicit KleineSchijf(const std::filesystem::path& plaats);
    KleineSchijf(const KleineSchijf&) = delete;
    KleineSchijf& operator=(const KleineSchijf&) = delete;
    ~KleineSchijf();

    bool isEr() const { return gelukt_; }

  private:
    std::filesystem::path plaats_;
    bool gelukt_;
};

}  // namespace hulp
