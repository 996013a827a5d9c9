// De vloer onder knippen ter plaatse: van elk bestand in een boom alleen wat elk programma moet doen dat het
// in één stap vervangt. Openen, lezen, een bestand ernaast maken, schrijven, de rechten zetten en hernoemen.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <span>
#include <string>

namespace {

bool vervang(const std::string& pad) {
    static std::array<char, std::size_t{1} << 20U> inhoud;
    const int bron = open(pad.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat kenmerken {};
    const bool open = bron >= 0 && fstat(bron, &kenmerken) == 0;
    const ssize_t lengte = open ? read(bron, inhoud.data(), inhoud.size()) : -1;
    close(bron);
    std::string naast = pad.substr(0, pad.rfind('/') + 1) + ".vloerXXXXXX";
    const int nieuw = mkostemp(naast.data(), O_CLOEXEC);
    const bool heel = lengte >= 0 && nieuw >= 0 &&
                      write(nieuw, inhoud.data(), static_cast<std::size_t>(lengte)) == lengte &&
                      fchmod(nieuw, kenmerken.st_mode) == 0;
    return close(nieuw) == 0 && heel && std::rename(naast.c_str(), pad.c_str()) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::span woorden(argv, static_cast<std::size_t>(argc));
    if (woorden.size() != 2) {
        std::cerr << "gebruik: vloermeter BOOM\n";
        return EXIT_FAILURE;
    }
    for (const auto& deel : std::filesystem::recursive_directory_iterator(woorden[1])) {
        if (deel.is_regular_file() && !vervang(deel.path().string())) {
            std::cerr << deel.path() << " is niet te vervangen\n";
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
