#pragma once

#include "jobs/ToolProcess.h"
#include "media/TranscodeJob.h"

namespace kestrel {

class JKestrelSettingDispatcher;
struct DiscPlan;

/// The tools that read discs and the ones that make something of them; absolute paths.
struct DiscTools {
    QString info, toImage, toFolder, cover, title;  ///< of the disc module's bundle
    QString author;                                 ///< dvdauthor
    QString writer;                                 ///< dd
    TranscodeTools transcode;
    bool keepsCancelledImages = false;  ///< to be gone on with, as those that were broken off
};

DiscTools discTools(const JKestrelSettingDispatcher &settings, int processors);

/// Asks a disc what it holds; the object is the whole output. Its own limits of time hold.
ToolCommand discInfoCommand(const DiscTools &tools, const QString &source);

/// Writes the plan's title, or the main one, as a program stream to standard output; `options` say what else it does.
std::shared_ptr<ToolCommand> titleReaderCommand(const DiscTools &tools, const DiscPlan &plan,
                                                const QStringList &options = {});

/// Looks for pictures at the begin, in the middle and at the end of the film; its result's "missing" are the seconds
/// where there is none.
ToolCommand discPictureCheckCommand(const DiscTools &tools, const QString &source);

/// Writes a picture of the film, or of one of its titles, into the file `target`.
ToolCommand discCoverCommand(const DiscTools &tools, const QString &source, int title, const QString &target);

}  // namespace kestrel
