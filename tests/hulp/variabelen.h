#pragma once

#include <filesystem>

namespace hulp {

/// Zet een omgevingsvariabele van dit proces op een pad, byte voor byte.
void zetVariabele(const char* naam, const std::filesystem::path& pad);

void wisVariabele(const char* naam);

}  // namespace hulp
