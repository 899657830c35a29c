#include "HtmlCharacters.h"

#include <QString>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

/// From U+00A0 on
constexpr QLatin1StringView latinCharacters[] = {
    "nbsp"_L1,   "iexcl"_L1,  "cent"_L1,   "pound"_L1,  "curren"_L1, "yen"_L1,    "brvbar"_L1, "sect"_L1,   "uml"_L1,
    "copy"_L1,   "ordf"_L1,   "laquo"_L1,  "not"_L1,    "shy"_L1,    "reg"_L1,    "macr"_L1,   "deg"_L1,    "plusmn"_L1,
    "sup2"_L1,   "sup3"_L1,   "acute"_L1,  "micro"_L1,  "para"_L1,   "middot"_L1, "cedil"_L1,  "sup1"_L1,   "ordm"_L1,
    "raquo"_L1,  "frac14"_L1, "frac12"_L1, "frac34"_L1, "iquest"_L1, "Agrave"_L1, "Aacute"_L1, "Acirc"_L1,  "Atilde"_L1,
    "Auml"_L1,   "Aring"_L1,  "AElig"_L1,  "Ccedil"_L1, "Egrave"_L1, "Eacute"_L1, "Ecirc"_L1,  "Euml"_L1,   "Igrave"_L1,
    "Iacute"_L1, "Icirc"_L1,  "Iuml"_L1,   "ETH"_L1,    "Ntilde"_L1, "Ograve"_L1, "Oacute"_L1, "Ocirc"_L1,  "Otilde"_L1,
    "Ouml"_L1,   "times"_L1,  "Oslash"_L1, "Ugrave"_L1, "Uacute"_L1, "Ucirc"_L1,  "Uuml"_L1,   "Yacute"_L1, "THORN"_L1,
    "szlig"_L1,  "agrave"_L1, "aacute"_L1, "acirc"_L1,  "atilde"_L1, "auml"_L1,   "aring"_L1,  "aelig"_L1,  "ccedil"_L1,
    "egrave"_L1, "eacute"_L1, "ecirc"_L1,  "euml"_L1,   "igrave"_L1, "iacute"_L1, "icirc"_L1,  "iuml"_L1,   "eth"_L1,
    "ntilde"_L1, "ograve"_L1, "oacute"_L1, "ocirc"_L1,  "otilde"_L1, "ouml"_L1,   "divide"_L1, "oslash"_L1, "ugrave"_L1,
    "uacute"_L1, "ucirc"_L1,  "uuml"_L1,   "yacute"_L1, "thorn"_L1,  "yuml"_L1};
static_assert(std::size(latinCharacters) == 96);

struct NamedCharacter {
    QLatin1StringView name;
    char16_t character;
};

constexpr NamedCharacter otherCharacters[] = {
    {"Alpha"_L1, 0x0391},  {"Beta"_L1, 0x0392},    {"Chi"_L1, 0x03A7},      {"Dagger"_L1, 0x2021},
    {"Delta"_L1, 0x0394},  {"Epsilon"_L1, 0x0395}, {"Eta"_L1, 0x0397},      {"Gamma"_L1, 0x0393},
    {"Iota"_L1, 0x0399},   {"Kappa"_L1, 0x039A},   {"Lambda"_L1, 0x039B},   {"Mu"_L1, 0x039C},
    {"Nu"_L1, 0x039D},     {"OElig"_L1, 0x0152},   {"Omega"_L1, 0x03A9},    {"Omicron"_L1, 0x039F},
    {"Phi"_L1, 0x03A6},    {"Pi"_L1, 0x03A0},      {"Prime"_L1, 0x2033},    {"Psi"_L1, 0x03A8},
    {"Rho"_L1, 0x03A1},    {"Scaron"_L1, 0x0160},  {"Sigma"_L1, 0x03A3},    {"Tau"_L1, 0x03A4},
    {"Theta"_L1, 0x0398},  {"Upsilon"_L1, 0x03A5}, {"Xi"_L1, 0x039E},       {"Yuml"_L1, 0x0178},
    {"Zeta"_L1, 0x0396},   {"alefsym"_L1, 0x2135}, {"alpha"_L1, 0x03B1},    {"amp"_L1, 0x0026},
    {"and"_L1, 0x2227},    {"ang"_L1, 0x2220},     {"apos"_L1, 0x0027},     {"asymp"_L1, 0x2248},
    {"bdquo"_L1, 0x201E},  {"beta"_L1, 0x03B2},    {"bull"_L1, 0x2022},     {"cap"_L1, 0x2229},
    {"check"_L1, 0x2713},  {"chi"_L1, 0x03C7},     {"circ"_L1, 0x02C6},     {"clubs"_L1, 0x2663},
    {"cong"_L1, 0x2245},   {"crarr"_L1, 0x21B5},   {"cup"_L1, 0x222A},      {"dArr"_L1, 0x21D3},
    {"dagger"_L1, 0x2020}, {"darr"_L1, 0x2193},    {"delta"_L1, 0x03B4},    {"diams"_L1, 0x2666},
    {"empty"_L1, 0x2205},  {"emsp"_L1, 0x2003},    {"ensp"_L1, 0x2002},     {"epsilon"_L1, 0x03B5},
    {"equiv"_L1, 0x2261},  {"eta"_L1, 0x03B7},     {"euro"_L1, 0x20AC},     {"exist"_L1, 0x2203},
    {"fnof"_L1, 0x0192},   {"forall"_L1, 0x2200},  {"frasl"_L1, 0x2044},    {"gamma"_L1, 0x03B3},
    {"ge"_L1, 0x2265},     {"gt"_L1, 0x003E},      {"hArr"_L1, 0x21D4},     {"harr"_L1, 0x2194},
    {"hearts"_L1, 0x2665}, {"hellip"_L1, 0x2026},  {"image"_L1, 0x2111},    {"infin"_L1, 0x221E},
    {"int"_L1, 0x222B},    {"iota"_L1, 0x03B9},    {"isin"_L1, 0x2208},     {"kappa"_L1, 0x03BA},
    {"lArr"_L1, 0x21D0},   {"lambda"_L1, 0x03BB},  {"lang"_L1, 0x2329},     {"larr"_L1, 0x2190},
    {"lceil"_L1, 0x2308},  {"ldquo"_L1, 0x201C},   {"le"_L1, 0x2264},       {"lfloor"_L1, 0x230A},
    {"lowast"_L1, 0x2217}, {"loz"_L1, 0x25CA},     {"lrm"_L1, 0x200E},      {"lsaquo"_L1, 0x2039},
    {"lsquo"_L1, 0x2018},  {"lt"_L1, 0x003C},      {"mdash"_L1, 0x2014},    {"minus"_L1, 0x2212},
    {"mu"_L1, 0x03BC},     {"nabla"_L1, 0x2207},   {"ndash"_L1, 0x2013},    {"ne"_L1, 0x2260},
    {"ni"_L1, 0x220B},     {"notin"_L1, 0x2209},   {"nsub"_L1, 0x2284},     {"nu"_L1, 0x03BD},
    {"oelig"_L1, 0x0153},  {"oline"_L1, 0x203E},   {"omega"_L1, 0x03C9},    {"omicron"_L1, 0x03BF},
    {"oplus"_L1, 0x2295},  {"or"_L1, 0x2228},      {"otimes"_L1, 0x2297},   {"part"_L1, 0x2202},
    {"permil"_L1, 0x2030}, {"perp"_L1, 0x22A5},    {"phi"_L1, 0x03C6},      {"pi"_L1, 0x03C0},
    {"piv"_L1, 0x03D6},    {"prime"_L1, 0x2032},   {"prod"_L1, 0x220F},     {"prop"_L1, 0x221D},
    {"psi"_L1, 0x03C8},    {"quot"_L1, 0x0022},    {"rArr"_L1, 0x21D2},     {"radic"_L1, 0x221A},
    {"rang"_L1, 0x232A},   {"rarr"_L1, 0x2192},    {"rceil"_L1, 0x2309},    {"rdquo"_L1, 0x201D},
    {"real"_L1, 0x211C},   {"rfloor"_L1, 0x230B},  {"rho"_L1, 0x03C1},      {"rlm"_L1, 0x200F},
    {"rsaquo"_L1, 0x203A}, {"rsquo"_L1, 0x2019},   {"sbquo"_L1, 0x201A},    {"scaron"_L1, 0x0161},
    {"sdot"_L1, 0x22C5},   {"sigma"_L1, 0x03C3},   {"sigmaf"_L1, 0x03C2},   {"sim"_L1, 0x223C},
    {"spades"_L1, 0x2660}, {"star"_L1, 0x2606},    {"sub"_L1, 0x2282},      {"sube"_L1, 0x2286},
    {"sum"_L1, 0x2211},    {"sup"_L1, 0x2283},     {"supe"_L1, 0x2287},     {"tau"_L1, 0x03C4},
    {"there4"_L1, 0x2234}, {"theta"_L1, 0x03B8},   {"thetasym"_L1, 0x03D1}, {"thinsp"_L1, 0x2009},
    {"tilde"_L1, 0x02DC},  {"trade"_L1, 0x2122},   {"uArr"_L1, 0x21D1},     {"uarr"_L1, 0x2191},
    {"upsih"_L1, 0x03D2},  {"upsilon"_L1, 0x03C5}, {"weierp"_L1, 0x2118},   {"xi"_L1, 0x03BE},
    {"zeta"_L1, 0x03B6},   {"zwj"_L1, 0x200D},     {"zwnj"_L1, 0x200C}};

}  // namespace

char16_t htmlCharacterNamed(QStringView name)
{
    const auto latin = std::find(std::begin(latinCharacters), std::end(latinCharacters), name);
    if (latin != std::end(latinCharacters))
        return char16_t(0xA0 + (latin - std::begin(latinCharacters)));
    const auto other = std::find_if(std::begin(otherCharacters), std::end(otherCharacters),
                                    [&](const NamedCharacter &candidate) { return candidate.name == name; });
    return other == std::end(otherCharacters) ? u'\0' : other->character;
}

}  // namespace kestrel::foundation
