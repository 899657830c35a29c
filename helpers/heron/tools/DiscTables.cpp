#include "DiscTables.h"

#include "TitleAttributes.h"
#include "helpers/heron/MainTitle.h"

#include <dvdread/ifo_read.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>

namespace kestrel::disc {

namespace {

struct CloseTables {
    void operator()(ifo_handle_t *tables) const { ifoClose(tables); }
};
using Tables = std::unique_ptr<ifo_handle_t, CloseTables>;

// Only what is needed, which leaves the menus' tables out. Where that is damaged, the library's own way, which also
// knows the second copy of each table.
Tables readTitleSet(dvd_reader_t *reader, int titleSet)
{
    Tables tables(ifoOpenVTSI(reader, titleSet));
    if (tables && ifoRead_VTS_PTT_SRPT(tables.get()) && ifoRead_PGCIT(tables.get()))
        return tables;
    tables.reset(ifoOpen(reader, titleSet));
    if (tables && tables->vtsi_mat && tables->vts_ptt_srpt && tables->vts_pgcit)
        return tables;
    return nullptr;
}

// A time code: in NTSC it counts 30 pictures for a second, which take a thousandth longer than that.
double secondsOf(const dvd_time_t &time)
{
    const auto digits = [](uint8_t value) { return (value >> 4) * 10 + (value & 15); };
    const bool isNtsc = time.frame_u >> 6 == 3;
    const int pictures = digits(time.frame_u & 0x3f);
    const double seconds = digits(time.hour) * 3600.0 + digits(time.minute) * 60 + digits(time.second);
    return isNtsc ? (seconds * 30 + pictures) * 1001 / 30000 : seconds + pictures / 25.0;
}

const pgc_t *chainOf(const ifo_handle_t &tables, int number)
{
    if (number < 1 || number > tables.vts_pgcit->nr_of_pgci_srp)
        return nullptr;
    const pgc_t *chain = tables.vts_pgcit->pgci_srp[number - 1].pgc;
    return chain && chain->cell_playback && chain->program_map ? chain : nullptr;
}

TitleCell cellOf(const pgc_t &chain, int index, int chapter)
{
    const cell_playback_t &cell = chain.cell_playback[index];
    const cell_position_t position = chain.cell_position ? chain.cell_position[index] : cell_position_t{};
    return {.firstSector = cell.first_sector,
            .lastSector = std::max(cell.first_sector, cell.last_sector),
            .seconds = secondsOf(cell.playback_time),
            .chapter = chapter,
            .vob = position.vob_id_nr,
            .number = position.cell_nr,
            .isInterleaved = cell.interleaved != 0,
            .hasOwnClock = cell.stc_discontinuity != 0,
            .stillSeconds = cell.still_time};
}

// The cells of a chain from a program on. A cell of an angle block that is not its first is one more choice.
void appendCells(const pgc_t &chain, int firstCell, int endCell, int chapter, QList<QList<TitleCell>> &cells)
{
    for (int i = firstCell; i < endCell; ++i) {
        const cell_playback_t &cell = chain.cell_playback[i];
        const bool isOtherAngle = cell.block_type == BLOCK_TYPE_ANGLE_BLOCK && cell.block_mode > BLOCK_MODE_FIRST_CELL;
        if (isOtherAngle && i > firstCell && cells.last().size() < 9)
            cells.last().append(cellOf(chain, i, chapter));
        else if (!isOtherAngle)
            cells.append({cellOf(chain, i, chapter)});
    }
}

int cellOfProgram(const pgc_t &chain, int program)
{
    if (program < 1 || program > chain.nr_of_programs)
        return chain.nr_of_cells;
    return std::clamp<int>(chain.program_map[program - 1] - 1, 0, chain.nr_of_cells);
}

// Chapters are programs of chains, mostly of one chain. What a chain holds before the first chapter's program belongs
// to that, what it holds behind its last chapter to the last.
TitleLayout layoutOfTitle(const ifo_handle_t &tables, const ttu_t &title, int titleSet)
{
    TitleLayout layout{.titleSet = titleSet, .cells = {}};
    for (int i = 0; i < title.nr_of_ptts; ++i) {
        const pgc_t *chain = chainOf(tables, title.ptt[i].pgcn);
        if (!chain)
            continue;
        const bool goesOn = i + 1 < title.nr_of_ptts && title.ptt[i + 1].pgcn == title.ptt[i].pgcn;
        const int first = i == 0 && title.ptt[i].pgn == 1 ? 0 : cellOfProgram(*chain, title.ptt[i].pgn);
        const int end = goesOn ? cellOfProgram(*chain, title.ptt[i + 1].pgn) : chain->nr_of_cells;
        appendCells(*chain, first, end, i + 1, layout.cells);
    }
    return layout;
}

double rounded(double seconds)
{
    return std::round(seconds * 1000) / 1000;
}

void describe(const ifo_handle_t &tables, const ttu_t &entry, const TitleLayout &layout, DiscTitle &title)
{
    describeVideo(tables.vtsi_mat->vts_video_attr, title);
    for (int i = 0; i < entry.nr_of_ptts && title.audio.isEmpty(); ++i)
        if (const pgc_t *chain = chainOf(tables, entry.ptt[i].pgcn)) {
            describeSound(*tables.vtsi_mat, *chain, title);
            describeSubtitles(*tables.vtsi_mat, *chain, title);
            break;
        }
    int chapter = 0;
    for (const QList<TitleCell> &choice : layout.cells) {
        const TitleCell &cell = choice.first();
        for (; chapter < cell.chapter; ++chapter)
            title.chapters.append(rounded(title.seconds));
        title.seconds += cell.seconds;
        if (const int standing = cell.standingSeconds()) {
            title.stills.append({rounded(title.seconds), standing});
            title.seconds += standing;
        }
        title.bytes +=
            (qint64(cell.lastSector) - cell.firstSector + 1) * sectorBytes / (cell.isInterleaved ? choice.size() : 1);
        title.angles = std::max(title.angles, static_cast<int>(choice.size()));
    }
    title.seconds = rounded(title.seconds);
}

void markMainTitle(DiscTables &tables)
{
    QList<TitleShape> shapes;
    for (qsizetype i = 0; i < tables.layouts.size(); ++i) {
        const DiscTitle &title = tables.contents.titles[i];
        TitleShape shape{.cells = {},
                         .chapters = static_cast<int>(title.chapters.size()),
                         .tracks = static_cast<int>(title.audio.size() + title.subtitles.size())};
        for (const QList<TitleCell> &choice : tables.layouts[i].cells)
            shape.cells.append({tables.layouts[i].titleSet, choice.first().firstSector, choice.first().seconds});
        shapes.append(shape);
    }
    const MainTitleChoice choice = chooseMainTitle(shapes);
    for (int i = 0; i < tables.contents.titles.size(); ++i) {
        tables.contents.titles[i].isMain = i == choice.main;
        if (const int other = choice.duplicateOf[i]; other >= 0)
            tables.contents.titles[i].duplicateOf = tables.contents.titles[other].number;
    }
}

}  // namespace

const TitleLayout *DiscTables::layoutOf(int number) const
{
    for (qsizetype i = 0; i < layouts.size(); ++i)
        if (contents.titles[i].number == number)
            return &layouts[i];
    return nullptr;
}

const DiscTitle *DiscTables::title(int number) const
{
    for (const DiscTitle &each : contents.titles)
        if (each.number == number)
            return &each;
    return nullptr;
}

foundation::Result<DiscTables, DiscError> readTables(const DiscSource &source)
{
    Tables manager(ifoOpenVMGI(source.reader()));
    if (!manager)
        return foundation::Failure{DiscError::NotADisc};
    if (!ifoRead_TT_SRPT(manager.get()))
        manager.reset(ifoOpen(source.reader(), 0));
    if (!manager || !manager->tt_srpt || !manager->tt_srpt->title)
        return foundation::Failure{DiscError::Damaged};

    DiscTables result;
    std::map<int, Tables> sets;
    for (int i = 0; i < std::min<int>(manager->tt_srpt->nr_of_srpts, 99); ++i) {
        const title_info_t &entry = manager->tt_srpt->title[i];
        if (entry.title_set_nr < 1 || entry.title_set_nr > 99)
            continue;
        const auto [found, isNew] = sets.try_emplace(entry.title_set_nr);
        if (isNew)
            found->second = readTitleSet(source.reader(), entry.title_set_nr);
        const Tables &set = found->second;
        if (!set || entry.vts_ttn < 1 || entry.vts_ttn > set->vts_ptt_srpt->nr_of_srpts)
            continue;
        const ttu_t &parts = set->vts_ptt_srpt->title[entry.vts_ttn - 1];
        TitleLayout layout = parts.ptt ? layoutOfTitle(*set, parts, entry.title_set_nr) : TitleLayout{};
        if (layout.cells.isEmpty())
            continue;
        DiscTitle title;
        title.number = i + 1;
        describe(*set, parts, layout, title);
        result.contents.titles.append(title);
        result.layouts.append(layout);
    }
    if (result.layouts.isEmpty())
        return foundation::Failure{DiscError::Damaged};
    markMainTitle(result);
    result.contents.volume = source.volume();
    result.contents.bytes = source.bytes();
    return result;
}

}  // namespace kestrel::disc
