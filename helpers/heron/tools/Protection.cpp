#include "Protection.h"

#include <QElapsedTimer>

#include <algorithm>
#include <set>
#include <vector>

namespace kestrel::disc {

namespace {

constexpr int sectorsAPlace = 16;
constexpr int milliseconds = 3000;
constexpr int enoughScrambled = 2;  // one flag may be a flipped bit

void lookAt(FilmFile &film, quint32 first, FilmSamples &samples)
{
    std::vector<uchar> sectors(sectorsAPlace * sectorBytes);
    const int came = film.read(first, sectorsAPlace, sectors.data());
    ++(came > 0 ? samples.readable : samples.unreadable);
    for (int i = 0; i < came; ++i) {
        Packets packets = packetsOf(Sector(&sectors[i * sectorBytes], sectorBytes));
        samples.scrambled +=
            std::any_of(packets.begin(), packets.end(), [](const Packet &packet) { return packet.isScrambled; });
    }
}

}  // namespace

bool isProtectedBy(const FilmSamples &samples, DiscSource::Kind kind)
{
    const bool isRefused = samples.readable == 0 && samples.unreadable >= 3;
    return samples.scrambled >= enoughScrambled || (kind == DiscSource::Kind::Drive && isRefused);
}

FilmState lookAtFilm(const DiscSource &source, const DiscTables &tables)
{
    FilmState state;
    QElapsedTimer clock;
    clock.start();
    const DiscTitle *main = tables.contents.mainTitle();
    const int mainSet = main ? tables.layoutOf(main->number)->titleSet : 0;
    std::set<int> seen;
    const auto lookAtSet = [&](int titleSet) {
        if (!seen.insert(titleSet).second || state.isProtected || clock.elapsed() > milliseconds)
            return;
        const bool isCutOff = source.isCutOff(titleSet);
        state.isTruncated |= isCutOff;
        auto film = FilmFile::open(source, titleSet);
        if (!film)
            return;
        FilmSamples samples;
        const int places = titleSet == mainSet ? 8 : 3;
        for (int i = 0; i < places && clock.elapsed() <= milliseconds; ++i)
            lookAt(*film, static_cast<quint32>(film->sectors() * i / places), samples);
        state.isProtected = isProtectedBy(samples, isCutOff ? DiscSource::Kind::Image : source.kind());
    };
    lookAtSet(mainSet);
    for (const TitleLayout &layout : tables.layouts)
        lookAtSet(layout.titleSet);
    return state;
}

}  // namespace kestrel::disc
