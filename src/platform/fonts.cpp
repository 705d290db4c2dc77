#include "platform/fonts.h"

#include "records/stored_types.h"

#include <QFontDatabase>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// Families of one metric: either may stand in for the other without moving a letter.
struct Substitute {
    QLatin1StringView asked;
    QLatin1StringView serves;
};
constexpr Substitute substitutes[] = {
    {"Arial"_L1, "Liberation Sans"_L1},
    {"Times New Roman"_L1, "Liberation Serif"_L1},
    {"Courier New"_L1, "Liberation Mono"_L1},
};

// Names of the Central European halves of old fonts, offered because the factory settings bear them.
constexpr QLatin1StringView oldNames[] = {"Arial CE"_L1, "Times New Roman CE"_L1};

// Widths of the fields that hold font names: of the forms, and of the labels.
constexpr qsizetype formFontWidth = 25;
constexpr qsizetype labelFontWidth = 30;

// More fonts, or names of fonts, than any set of forms uses; beyond it the book starts anew.
constexpr qsizetype mostRemembered = 64;

QString withoutTrailingBlanks(const QString& name) {
    qsizetype length = name.size();
    while (length > 0 && name[length - 1] == u' ')
        --length;
    return name.left(length);
}

bool sameName(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

// Whether a field of this width has cut `family` down to `name`.
bool isCutTo(const QString& name, const QString& family, qsizetype width) {
    return family.size() > width && sameName(withoutTrailingBlanks(family.left(width)), name);
}

QString withoutCe(const QString& name) {
    return name.endsWith(" CE"_L1, Qt::CaseInsensitive) ? withoutTrailingBlanks(name.chopped(3)) : name;
}

FontBook::Face faceOf(const Font& font, const QString& family) {
    QFont result(family);
    result.setPixelSize(std::max(1, qRound(qreal(font.size) * paperUnitsPerInch / 72)));
    result.setBold(font.bold);
    result.setItalic(font.italic);
    result.setHintingPreference(QFont::PreferNoHinting);
    return {result, QFontMetricsF(result)};
}

} // namespace

FontBook::FontBook() : FontBook(QFontDatabase::families()) {}

FontBook::FontBook(QStringList installed) : installed_(std::move(installed)) {}

std::optional<QString> FontBook::installedName(const QString& name) const {
    const auto at = std::find_if(installed_.begin(), installed_.end(),
                                 [&](const QString& family) { return sameName(family, name); });
    return at == installed_.end() ? std::nullopt : std::optional(*at);
}

std::optional<QString> FontBook::cutName(const QString& name) const {
    const auto isCut = [&](const QString& family) {
        return isCutTo(name, family, formFontWidth) || isCutTo(name, family, labelFontWidth);
    };
    const auto at = std::find_if(installed_.begin(), installed_.end(), isCut);
    if (at == installed_.end() || std::any_of(at + 1, installed_.end(), isCut)) return std::nullopt;
    return *at;
}

std::optional<QString> FontBook::familyFor(const QString& name) const {
    if (const auto known = families_.constFind(name); known != families_.constEnd()) return *known;
    if (families_.size() == mostRemembered) families_.clear();
    return *families_.insert(name, findFamily(name));
}

std::optional<QString> FontBook::findFamily(const QString& name) const {
    const QString full = withoutTrailingBlanks(name);
    if (auto itself = installedName(full)) return itself;
    const QString plain = withoutCe(full);
    if (auto itself = installedName(plain)) return itself;
    for (const Substitute& substitute : substitutes)
        if (sameName(plain, substitute.asked)) return installedName(substitute.serves);
    return cutName(full);
}

// Comes back as the same family from either field: neither its letters nor its length get lost.
bool FontBook::isStorable(const QString& family) const {
    return familyFor(Text<formFontWidth>(family).stored()) == family &&
           familyFor(Text<labelFontWidth>(family).stored()) == family;
}

QStringList FontBook::names() const {
    QStringList all;
    std::copy_if(installed_.begin(), installed_.end(), std::back_inserter(all),
                 [this](const QString& family) { return isStorable(family); });
    for (const QLatin1StringView name : oldNames)
        if (familyFor(name) && !all.contains(name, Qt::CaseInsensitive)) all.append(name);
    all.sort(Qt::CaseInsensitive);
    return all;
}

void FontBook::substituteOnScreen() const {
    const auto substitute = [this](const QString& name) {
        const std::optional<QString> family = familyFor(name);
        if (family && *family != name) QFont::insertSubstitution(name, *family);
    };
    for (const QLatin1StringView name : oldNames)
        substitute(name);
    for (const Substitute& row : substitutes)
        substitute(row.asked);
}

const FontBook::Face& FontBook::face(const Font& font) {
    const auto known =
        std::find_if(faces_.begin(), faces_.end(), [&](const Entry& entry) { return entry.key == font; });
    if (known != faces_.end()) return known->face;
    if (faces_.size() == std::size_t{mostRemembered}) faces_.clear();
    faces_.push_back({font, faceOf(font, familyFor(font.name).value_or(font.name))});
    return faces_.back().face;
}
