#include "legacy/cng.h"

namespace tessaline {

AlgorithmOwner OpenAlgorithm(const wchar_t* name) {
    AlgorithmOwner algorithm;
    const NTSTATUS opened = BCryptOpenAlgorithmProvider(algorithm.Receive(), name, nullptr, 0);
    return BCRYPT_SUCCESS(opened) ? std::move(algorithm) : AlgorithmOwner();
}

ULONG SizeProperty(BCRYPT_HANDLE object, const wchar_t* name) {
    ULONG size = 0;
    ULONG written = 0;
    const NTSTATUS read =
        BCryptGetProperty(object, name, reinterpret_cast<PUCHAR>(&size), sizeof size, &written, 0);
    return BCRYPT_SUCCESS(read) ? size : 0;
}

}  // namespace tessaline
