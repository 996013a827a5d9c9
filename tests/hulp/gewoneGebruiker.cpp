#include "tests/hulp/gewoneGebruiker.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace hulp {

bool doeAlsGewoneGebruiker(const std::function<void()>& handeling) {
    const pid_t kind = fork();
    if (kind == 0) {
        if (geteuid() == 0 &&
            (setresgid(niemand, niemand, niemand) != 0 || setresuid(niemand, niemand, niemand) != 0)) {
            _exit(2);
        }
        handeling();
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    waitpid(kind, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace hulp
