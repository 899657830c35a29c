#pragma once

#include <cstddef>

/// What libEngineSignature, which is loaded by path, and its caller have in common.
namespace kestrel {

/// Whether `signature` (64 bytes) over `message` was made with the private part of `key` (32 bytes): Ed25519.
extern "C" using EngineSignatureFunction = bool(const unsigned char *key, const unsigned char *signature,
                                                const unsigned char *message, std::size_t messageSize);

inline constexpr char engineSignatureSymbol[] = "engineSignatureIsGood";

}  // namespace kestrel
