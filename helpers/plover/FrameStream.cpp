#include "FrameStream.h"

namespace kestrel::frames {

namespace {

// Identifiers of Matroska's elements
constexpr uint32_t ebml = 0x1A45DFA3, documentType = 0x4282, segment = 0x18538067, information = 0x1549A966,
                   timestampScale = 0x2AD7B1, muxer = 0x4D80, writer = 0x5741, tracks = 0x1654AE6B, track = 0xAE,
                   trackNumber = 0xD7, trackIdentifier = 0x73C5, trackType = 0x83, usualDuration = 0x23E383,
                   codec = 0x86, lacing = 0x9C, video = 0xE0, width = 0xB0, height = 0xBA, colourSpace = 0x2EB524,
                   cluster = 0x1F43B675, clusterTime = 0xE7, simpleBlock = 0xA3;
constexpr int videoTrack = 1;
constexpr uint64_t nanosecondsOfATick = 1000;
const std::string unknownSize("\x01\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 8);

/// Big-endian, without zeros in front but for the `least` bytes.
std::string number(uint64_t value, int least = 1)
{
    std::string bytes;
    for (int shift = 56; shift >= 0; shift -= 8) {
        if (!bytes.empty() || (value >> shift) != 0 || shift < 8 * least)
            bytes += char(value >> shift & 0xFF);
    }
    return bytes;
}

/// Sizes always take eight bytes, of which the first one says so.
std::string sizeOf(uint64_t bytes)
{
    return number(bytes | uint64_t(1) << 56, 8);
}

std::string element(uint32_t identifier, const std::string &content)
{
    return number(identifier) + sizeOf(content.size()) + content;
}

std::string element(uint32_t identifier, uint64_t value)
{
    return element(identifier, number(value));
}

}  // namespace

std::string streamHead(Size size, PixelOrder order, double rate)
{
    const std::string layout(order == PixelOrder::BlueFirst ? "BGR\0" : "RGB\0", 4);
    const std::string picture =
        element(width, uint64_t(size.width)) + element(height, uint64_t(size.height)) + element(colourSpace, layout);
    const std::string description = element(trackNumber, 1) + element(trackIdentifier, 1) +
                                    element(trackType, videoTrack) + element(usualDuration, uint64_t(1e9 / rate)) +
                                    element(lacing, uint64_t(0)) + element(codec, std::string("V_UNCOMPRESSED")) +
                                    element(video, picture);
    return element(ebml, element(documentType, std::string("matroska"))) + number(segment) + unknownSize +
           element(information, element(timestampScale, nanosecondsOfATick) + element(muxer, std::string("Kestrel")) +
                                    element(writer, std::string("Kestrel"))) +
           element(tracks, element(track, description));
}

std::string pictureHead(Size size, int64_t time)
{
    const uint64_t pixels = uint64_t(size.width) * uint64_t(size.height) * 4;
    const std::string blockHead("\x81\0\0\x80", 4);  // the track, no time beyond the cluster's, to be shown by itself
    const std::string begin = element(clusterTime, uint64_t(time));
    const std::string block = number(simpleBlock) + sizeOf(blockHead.size() + pixels) + blockHead;
    return number(cluster) + sizeOf(begin.size() + block.size() + pixels) + begin + block;
}

}  // namespace kestrel::frames
