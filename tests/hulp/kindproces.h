#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace hulp {

/// Een proces dat met het object ophoudt te bestaan.
class Kindproces {
  public:
    /// Start een programma uit PATH; het sterft ook als het testproces sterft. Uitvoer en fouten komen
    /// achter wat er al in deze bestanden staat.
    Kindproces(const std::vector<std::string>& opdracht, const std::filesystem::path& uitvoer,
               const std::filesystem::path& fouten);
    Kindproces(const Kindproces&) = delete;
    Kindproces& operator=(const Kindproces&) = delete;
    ~Kindproces();

    pid_t nummer() const { return nummer_; }

    /// Of het proces opgehouden is; de status is dan te vragen.
    bool isAf();

    /// De afloopstatus: de waarde van exit, of 128 + het signaal. Alleen geldig als isAf.
    int status() const;

    void stuur(int signaal) const;

  private:
    pid_t nummer_;
    int ruweStatus_ = 0;
    bool af_ = false;
};

}  // namespace hulp
