#pragma once

#include "TranscodeCommand.h"

namespace kestrel {

/// Writes the picture as Ogg files have it among their tags, for ffmpeg to read as the tags of its first track: in the
/// name METADATA_BLOCK_PICTURE a picture block of FLAC (RFC 9639, section 8.8), in Base64. False where the picture is
/// empty or over 16 MB: then the file has no tag; nothing where the file cannot be written.
std::optional<bool> writeCoverTag(const CoverTag &tag);

}  // namespace kestrel
