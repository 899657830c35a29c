#pragma once

#include "helpers/heron/DiscContents.h"

#include <dvdread/ifo_types.h>

namespace kestrel::disc {

// What the attributes of a title set and of a chain say about a title, in words.
void describeVideo(const video_attr_t &video, DiscTitle &title);
void describeSound(const vtsi_mat_t &set, const pgc_t &chain, DiscTitle &title);
void describeSubtitles(const vtsi_mat_t &set, const pgc_t &chain, DiscTitle &title);

}  // namespace kestrel::disc
