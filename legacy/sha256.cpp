#include "legacy/sha256.h"

#include "legacy/cng.h"

namespace tessaline {

SecretBytes Sha256(ByteView bytes) {
    const AlgorithmOwner algorithm = OpenAlgorithm(BCRYPT_SHA256_ALGORITHM);
    if (!algorithm) return {};
    // CNG keeps the state of a hash in memory of ours, which must outlive the hash.
    SecretBytes object(SizeProperty(algorithm.Get(), BCRYPT_OBJECT_LENGTH));
    SecretBytes digest(SizeProperty(algorithm.Get(), BCRYPT_HASH_LENGTH));
    HashOwner hash;
    const bool hashed =
        BCRYPT_SUCCESS(BCryptCreateHash(algorithm.Get(), hash.Receive(), object.data(),
                                        static_cast<ULONG>(object.size()), nullptr, 0, 0)) &&
        BCRYPT_SUCCESS(BCryptHashData(hash.Get(), CngInput(bytes.data()),
                                      static_cast<ULONG>(bytes.size()), 0)) &&
        BCRYPT_SUCCESS(
            BCryptFinishHash(hash.Get(), digest.data(), static_cast<ULONG>(digest.size()), 0));
    return hashed ? std::move(digest) : SecretBytes();
}

}  // namespace tessaline
