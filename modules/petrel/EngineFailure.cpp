#include "EngineFailure.h"

#include "jobs/SystemFailure.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::TextKey;
using tarnwell::operator""_key;

namespace {

using Kind = EngineFailure::Kind;

struct KindSentence {
    Kind kind;
    TextKey sentence;
};

constexpr KindSentence sentences[] = {
    {Kind::UnknownSite,
     "This address is of no site that Kestrel knows. Check it, or look for the page that plays the film."_key},
    {Kind::Gone, "The film is no longer there. Look for it at another address."_key},
    {Kind::Private,
     "The film is private or for members only, so it cannot be downloaded. Look for it at another address."_key},
    {Kind::LogIn,
     "The site shows this film only to those who have logged in, which Kestrel does not do. Look for it at another address."_key},
    {Kind::Age,
     "The site wants to know the viewer's age first, which it learns only from a log-in. Look for it at another address."_key},
    {Kind::Country,
     "The site does not show this film in your country. A proxy of another country can be set in the settings."_key},
    {Kind::NotBegun, "The broadcast has not begun yet. Try again when it has."_key},
    {Kind::Protected, "The film is copy protected and is not downloaded. Watch it on its own site."_key},
    {Kind::TooMany, "The server takes no more requests for now. Try again in a while."_key},
    {Kind::NoNetwork, "There is no connection to the network. Check it and try again."_key},
    {Kind::Proxy, "The proxy refuses the connection. Check its address in the settings."_key},
    {Kind::Refused,
     "The server refuses to hand out the film. Try again later, or open the page in a browser to see why."_key},
    {Kind::Server, "The server broke off or could not answer. What has come is kept; try again later."_key},
    {Kind::NotThere, "No server answers at this address. Check it and try again."_key},
    {Kind::Certificate,
     "The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded; check the address and this computer's date."_key},
    {Kind::NoFilm, "There is no film at this address. Look for the page that plays it."_key},
    {Kind::TooLong,
     "There are too many films at this address to look at them all. Add the address of one of them."_key},
    {Kind::NoSuchForm, "The film is not there in the form that was wanted. Choose another resolution or format."_key},
    {Kind::Disk, "There is no space left on the disk. Free some space and try again; what has come is kept."_key},
    {Kind::EngineOld,
     "The site has changed and the download engine does not know it any more. Update the engine and try again."_key},
    {Kind::EngineBroken, "The download engine does not work. Please install the application again."_key},
    {Kind::Unknown, "The download failed. Try again later; the details tell what the engine said."_key},
};

struct Words {
    const char *pattern;  ///< without regard to case
    Kind kind;
};

// The first that matches counts: what a person can do something about comes before the number of a status.
constexpr Words wordsTable[] = {
    {"No space left on device|Disk quota exceeded", Kind::Disk},
    {"DRM protect|\\bDRM\\b", Kind::Protected},
    {"HTTP Error 429|Too Many Requests|rate.?limit", Kind::TooMany},
    {"HTTP Error 407|Proxy Authentication|Tunnel connection "
     "failed|proxy.{0,40}(refused|failed|error)|Socks\\w*(Proxy)?Error|"
     "Unable to connect to proxy",
     Kind::Proxy},
    {"Network is unreachable|Temporary failure in name resolution|No route to host|Network is down", Kind::NoNetwork},
    {"Name or service not known|nodename nor servname|No address associated|Connection refused", Kind::NotThere},
    {"CERTIFICATE_VERIFY_FAILED|certificate verify failed", Kind::Certificate},
    {"will begin in|has not (yet )?(begun|started)|premieres? in|(event|broadcast|stream|live).{0,30}not (yet "
     ")?started|"
     "is upcoming|is not live yet|will start (at|in|on)\\b|not started yet|\\b(is|are) (not live|offline)|is now "
     "offline",
     Kind::NotBegun},
    {"confirm your age|age.?(restrict|gate|verif)|inappropriate for some users", Kind::Age},
    {"not (made this video )?available (in|from) your (country|location|region)|geo.?restrict|"
     "blocked it in your country|not available in your region|geo.?block|(un|not be )available in your "
     "(country|location|region)|blocked in (this|your) (country|region)|HTTP Error 451",
     Kind::Country},
    {"members.only|private video|video is private|this (video|playlist) is private|join this channel|\\bpremium\\b|"
     "only available (to|via|for).{0,30}(member|subscri)|paid content|requires payment|not available for free|"
     "subscription|subscribe to|protected by a pass|--video-password",
     Kind::Private},
    {"log.?in required|sign in|need to log in|only available for registered users|use --cookies|account credentials|"
     "HTTP Error 401|requires authentication",
     Kind::LogIn},
    {"Video unavailable|has been removed|no longer available|HTTP Error 404|HTTP Error 410|does not exist|"
     "account.{0,40}terminated|been deleted|was deleted|no longer exists|has (already )?(ended|finished)|expired\\?|"
     "\\b(video|content|track|clip|item|space|page|song)s?\\b.{0,25}(unavailable|not available|not found)(?!.*please "
     "report)",
     Kind::Gone},
    {"Requested format is not available|No video formats found.{0,20}requested", Kind::NoSuchForm},
    {"Unsupported URL", Kind::UnknownSite},
    {"No video formats found|no (suitable )?(video|media|formats?) (could be )?found|There'?s no video|"
     "is not a valid URL|did not get any data blocks|The page contains no|contain any video|"
     "\\bno video (on|in|content)\\b",
     Kind::NoFilm},
    {"HTTP Error 4(?!08|16)\\d\\d|Forbidden|captcha", Kind::Refused},
    {"HTTP Error (5\\d\\d|408)|timed? ?out|Connection reset|Connection aborted|Remote end closed|IncompleteRead|"
     "bytes read, .* more expected|ContentTooShort|Content too short|Giving up after|BadStatusLine|"
     "Connection broken|EOF occurred|fragment .{0,20}not found|HTTP Error 416|Did not get any data|BrokenPipe",
     Kind::Server},
    {"Unable to (extract|parse|decode)|please report this issue|Confirm you are on the latest version|Failed to "
     "(parse|extract)",
     Kind::EngineOld},
    {"Traceback \\(most recent call last\\)|SyntaxError|ImportError|ModuleNotFoundError|bad interpreter|"
     "no such option|error: unrecognized|env: .{0,30}No such file",
     Kind::EngineBroken},
};

/// The lines that tell errors, or all where there is none; what stands in quotes may be a name and tells nothing. An
/// apostrophe within a word is no quote.
QString messagesIn(const QString &words)
{
    static const QRegularExpression quoted(u"(?<!\\w)([\"'])[^\"'\\n]{0,2000}\\1(?!\\w)|https?://\\S+"_s);
    QStringList errors;
    for (const QString &line : words.split(u'\n')) {
        if (line.startsWith("ERROR:"_L1) || line.contains("error:"_L1))
            errors.append(line);
    }
    QString text = errors.isEmpty() ? words : errors.join(u'\n');
    return text.remove(quoted);
}

TextKey sentenceOf(Kind kind)
{
    for (const KindSentence &row : sentences) {
        if (row.kind == kind)
            return row.sentence;
    }
    return {};
}

Kind kindOf(const QString &words)
{
    const QString messages = messagesIn(words);
    for (const Words &row : wordsTable) {
        const QRegularExpression pattern(QString::fromLatin1(row.pattern), QRegularExpression::CaseInsensitiveOption);
        if (pattern.match(messages).hasMatch())
            return row.kind;
    }
    return Kind::Unknown;
}

}  // namespace

EngineFailure engineFailure(const ToolEnding &ending, const QString &proxy)
{
    using enum ToolEnding::Cause;
    Kind kind = Kind::Unknown;
    switch (ending.cause) {
        case CouldNotStart:
            kind = Kind::EngineBroken;
            break;
        case Crashed:  // killed, such as for want of memory
            break;
        case TimeLimit:
        case Silence:
            kind = Kind::Server;
            break;
        case OutputLimit:
            kind = Kind::TooLong;
            break;
        default:
            kind = kindOf(ending.lastWords);
    }
    if (kind == Kind::NotThere && !proxy.isEmpty())
        kind = Kind::Proxy;
    return engineFailureOf(kind);
}

EngineFailure engineFailureOf(EngineFailure::Kind kind)
{
    return {kind, sentenceOf(kind)};
}

int retryAfterIn(const QByteArray &output)
{
    constexpr int longest = 24 * 3600;
    static const QByteArray mark = "header: retry-after: ";
    const QByteArray text = output.right(256 * 1024);
    const qsizetype place = text.toLower().lastIndexOf(mark);
    if (place < 0)
        return 0;
    const qsizetype start = place + mark.size(), end = text.indexOf('\n', start);
    const QByteArray value = text.mid(start, end < 0 ? -1 : end - start).trimmed();
    bool isNumber = false;
    qlonglong seconds = value.toLongLong(&isNumber);
    if (!isNumber) {
        QDateTime date = QLocale::c().toDateTime(QString::fromLatin1(value), u"ddd, dd MMM yyyy hh:mm:ss 'GMT'"_s);
        date.setTimeSpec(Qt::UTC);
        seconds = date.isValid() ? QDateTime::currentDateTimeUtc().secsTo(date) : 0;
    }
    return int(std::clamp<qlonglong>(seconds, 0, longest));
}

bool passesByItself(EngineFailure::Kind kind)
{
    return kind == Kind::NoNetwork || kind == Kind::TooMany || kind == Kind::Server;
}

bool mayBeTheEngine(EngineFailure::Kind kind)
{
    return kind == Kind::EngineBroken || kind == Kind::EngineOld || kind == Kind::Unknown;
}

}  // namespace kestrel
