#include "Knipselaar/kern/systeem/vindBytes.h"

#include <cstring>

namespace kern {

std::size_t vindBytes(std::string_view hooi, std::string_view naald) {
    const void* plek = memmem(hooi.data(), hooi.size(), naald.data(), naald.size());
    return plek == nullptr ? std::string_view::npos
                           : static_cast<std::size_t>(static_cast<const char*>(plek) - hooi.data());
}

}  // namespace kern
