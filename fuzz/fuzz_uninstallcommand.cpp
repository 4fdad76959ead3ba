#include "fuzz/Fuzz.h"
#include "trace/UninstallCommand.h"

/// A command's program is a part of it, and the whole of it without quotes; what is in quotes is taken whatever comes
/// after; a useless part is found in any letter case, wherever it stands.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString command = Fuzz::utf16Of(Fuzz::bytesOf(data, size));
    const QString program = UninstallCommand::programOf(command);
    Fuzz::require(command.contains(program), "a part of the command");
    const bool isQuoted = command.startsWith(QLatin1Char('"'));
    Fuzz::require(isQuoted ? !program.contains(QLatin1Char('"')) : program == command, "without its quotes, or whole");

    QString path = command;
    path.remove(QLatin1Char('"'));
    const QString quoted = QLatin1Char('"') + path + QLatin1String("\" ") + command;
    Fuzz::require(UninstallCommand::programOf(quoted) == path, "the quoted program");

    bool isUseless = false;
    for (const QLatin1String part : UninstallCommand::uselessParts) {
        isUseless = isUseless || command.toLower().contains(QString(part).toLower());
        const QString around = path + QString(part).toUpper() + path;
        Fuzz::require(!UninstallCommand::uselessPartOf(around).isEmpty(), "useless in any letter case");
    }
    Fuzz::require(!isUseless || !UninstallCommand::uselessPartOf(command).isEmpty(), "useless");
    return 0;
}
