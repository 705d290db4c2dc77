#include "picture/dialogs/folder_error.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Words {
    int number;
    QString line;
};

Words wordsFor(const std::error_code& error) {
    using std::errc;
    const auto is = [&](std::initializer_list<errc> kinds) {
        return std::any_of(kinds.begin(), kinds.end(), [&](errc kind) { return error == kind; });
    };
    if (is({errc::no_such_file_or_directory, errc::not_a_directory}))
        return {76, u"A kijelölt elérési út nem található."_s};
    if (is({errc::permission_denied, errc::operation_not_permitted, errc::no_such_device, errc::io_error,
            errc::no_such_device_or_address}))
        return {68, u"A kívánt eszköz nem elérhető."_s};
    return {error.value(), u"Ismeretlen hiba."_s};
}

} // namespace

QString folderError(const QString& folder) {
    std::error_code error;
    const std::filesystem::directory_iterator entries(folder.toStdU16String(), error);
    if (!error) return {};
    const Words words = wordsFor(error);
    return words.line + u"\nRT. Hibakód :     "_s + QString::number(words.number) + u"\nA hiba fajtálya:  "_s +
           QString::fromLocal8Bit(error.message().c_str());
}
