#include "recordings/RegFile.h"

#include "recordings/RegCursor.h"
#include "recordings/RegText.h"
#include "recordings/RegValues.h"

#include <QStringList>
#include <QtEndian>

#include <algorithm>
#include <iterator>

namespace Recordings {

namespace {

struct RootName {
    QLatin1String name;
    RegKey::Root root;
};

const RootName rootNames[] = {
    {QLatin1String("HKEY_LOCAL_MACHINE"), RegKey::Root::LocalMachine},
    {QLatin1String("HKEY_CURRENT_USER"), RegKey::Root::CurrentUser},
    {QLatin1String("HKEY_CLASSES_ROOT"), RegKey::Root::ClassesRoot},
    {QLatin1String("HKEY_USERS"), RegKey::Root::Users},
    {QLatin1String("HKEY_CURRENT_CONFIG"), RegKey::Root::Other},
    {QLatin1String("HKEY_CURRENT_USER_LOCAL_SETTINGS"), RegKey::Root::Other},
    {QLatin1String("HKEY_DYN_DATA"), RegKey::Root::Other},
    {QLatin1String("HKEY_PERFORMANCE_DATA"), RegKey::Root::Other},
};

/// Null for what is no root.
const RootName* findRoot(const QString& name) {
    const auto* const found = std::find_if(std::begin(rootNames), std::end(rootNames), [&name](const RootName& known) {
        return name.compare(known.name, Qt::CaseInsensitive) == 0;
    });
    return found != std::end(rootNames) ? found : nullptr;
}

class Parser {
public:
    Parser(const QString& text, const QString& file, RegFile& result)
        : m_cursor(text)
        , m_lines(text)
        , m_file(file)
        , m_result(result) {}

    void parse();

private:
    void parseKey();
    bool openKey(const QString& line);
    bool parseValue();
    bool parseName(RegValue& value);
    bool parseData(RegValue& value);
    bool parseTypedBytes(RegValue& value);

    bool failHere(const QString& message) { return m_cursor.fail(m_cursor.position(), message); }

    void report(const RegCursor::Fault& fault);

    RegCursor m_cursor;
    LineCounter m_lines;
    const QString& m_file;
    RegFile& m_result;
    bool m_seenKey = false;
    bool m_keyIsOpen = false;
};

void Parser::parse() {
    m_cursor.toNextLine(); // the header
    while (!m_cursor.atEnd()) {
        if (m_cursor.atLineEnd()) {
            m_cursor.toNextLine();
        } else if (m_cursor.peek() == QLatin1Char('[')) {
            parseKey();
        } else {
            if (!parseValue()) {
                report(m_cursor.fault());
            }
            m_cursor.toNextLine();
        }
    }
}

void Parser::parseKey() {
    const int begin = m_cursor.position();
    const QString line = m_cursor.takeLine();
    m_seenKey = true;
    m_keyIsOpen = false;
    const int end = line.lastIndexOf(QLatin1Char(']'));
    if (end < 0) {
        report({begin, QStringLiteral("the key name is not closed")});
    } else if (!openKey(line.mid(1, end - 1))) {
        report({begin, m_cursor.fault().message});
    }
}

// Values below a key that can't be used go with it: the one report names them all.
bool Parser::openKey(const QString& line) {
    RegKey key;
    key.isErased = line.startsWith(QLatin1Char('-'));
    const QStringList parts = line.mid(key.isErased ? 1 : 0).split(QLatin1Char('\\'), Qt::SkipEmptyParts);
    const RootName* const root = findRoot(parts.value(0));
    if (!root) {
        return failHere(QStringLiteral("\"%1\" is no root key, such as HKEY_LOCAL_MACHINE").arg(parts.value(0)));
    }
    if (parts.size() > deepestKey) {
        return failHere(QStringLiteral("the key is more than %1 levels deep").arg(deepestKey));
    }
    if (root->root == RegKey::Root::Other) {
        return true;
    }
    key.root = root->root;
    key.path = parts.mid(1).join(QLatin1Char('\\'));
    m_keyIsOpen = !key.isErased;
    m_result.keys.push_back(std::move(key));
    return true;
}

bool Parser::parseValue() {
    RegValue value;
    if (!parseName(value)) {
        return false;
    }
    m_cursor.skipBlanks();
    if (!m_cursor.take(QLatin1String("="))) {
        return failHere(QStringLiteral("\"=\" is expected after the name of a value"));
    }
    m_cursor.skipBlanks();
    if (!parseData(value)) {
        return false;
    }
    if (!m_cursor.atLineEnd()) {
        return failHere(QStringLiteral("something follows the value in its line"));
    }
    if (!m_seenKey) {
        return failHere(QStringLiteral("the value stands before the first key"));
    }
    if (m_keyIsOpen) {
        m_result.keys.back().values.push_back(std::move(value));
    }
    return true;
}

bool Parser::parseName(RegValue& value) {
    if (m_cursor.peek() == QLatin1Char('"')) {
        return m_cursor.takeQuoted(false, value.name);
    }
    if (m_cursor.take(QLatin1String("@"))) {
        return true;
    }
    return failHere(QStringLiteral("the line is neither a key nor a value"));
}

bool Parser::parseData(RegValue& value) {
    if (m_cursor.take(QLatin1String("-"))) {
        value.isErased = true;
        return true;
    }
    if (m_cursor.peek() == QLatin1Char('"')) {
        QString text;
        if (!m_cursor.takeQuoted(true, text)) {
            return false;
        }
        value.type = RegType::string;
        value.data = storedText(text);
        return true;
    }
    if (m_cursor.take(QLatin1String("dword:"))) {
        quint32 number = 0;
        m_cursor.skipBlanks();
        if (!m_cursor.takeNumber(number)) {
            return false;
        }
        value.type = RegType::dword;
        value.data.resize(sizeof number);
        qToLittleEndian(number, value.data.data());
        return true;
    }
    return parseTypedBytes(value);
}

bool Parser::parseTypedBytes(RegValue& value) {
    value.type = RegType::binary;
    if (m_cursor.take(QLatin1String("hex("))) {
        if (!m_cursor.takeNumber(value.type)) {
            return false;
        }
        if (!m_cursor.take(QLatin1String("):"))) {
            return failHere(QStringLiteral("\"):\" is expected after the type"));
        }
    } else if (!m_cursor.take(QLatin1String("hex:"))) {
        return failHere(QStringLiteral("a string, \"dword:\", \"hex:\", \"hex(…):\" or \"-\" is expected"));
    }
    return m_cursor.takeBytes(value.data);
}

void Parser::report(const RegCursor::Fault& fault) {
    m_result.problems.push_back({m_file, m_lines.lineAt(fault.position), fault.message});
}

bool hasHeader(const QString& text) {
    const int end = text.indexOf(QLatin1Char('\n'));
    return text.leftRef(end).trimmed() == QLatin1String("Windows Registry Editor Version 5.00");
}

} // namespace

QString rootName(RegKey::Root root) {
    const auto* const found = std::find_if(std::begin(rootNames), std::end(rootNames),
                                           [root](const RootName& known) { return known.root == root; });
    return found->name;
}

RegKey::Root rootNamed(const QString& name) {
    const RootName* const found = findRoot(name);
    return found ? found->root : RegKey::Root::Other;
}

RegFile parseRegFile(const QByteArray& bytes, const QString& file) {
    RegFile result;
    const QString text = decodeRegText(bytes, file, result.problems);
    if (!hasHeader(text)) {
        result.problems = {{file, 1, QStringLiteral("the first line is not \"Windows Registry Editor Version 5.00\"")}};
        return result;
    }
    Parser(text, file, result).parse();
    std::stable_sort(result.problems.begin(), result.problems.end(),
                     [](const auto& a, const auto& b) { return a.line < b.line; });
    return result;
}

} // namespace Recordings
