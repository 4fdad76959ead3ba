#include "recordings/NeutralNames.h"

#include <QChar>
#include <QUrl>

#include <algorithm>

namespace Recordings {

namespace {

constexpr int lettersOfShortForm = 6;

/// The character that ends before `position`, or begins at it: two units where they are a pair.
uint characterBefore(const QString& text, int position) {
    const QChar last = text.at(position - 1);
    const bool isPair = last.isLowSurrogate() && position > 1 && text.at(position - 2).isHighSurrogate();
    return isPair ? QChar::surrogateToUcs4(text.at(position - 2), last) : last.unicode();
}

uint characterAt(const QString& text, int position) {
    const QChar first = text.at(position);
    const bool isPair = first.isHighSurrogate() && position + 1 < text.size() && text.at(position + 1).isLowSurrogate();
    return isPair ? QChar::surrogateToUcs4(first, text.at(position + 1)) : first.unicode();
}

bool isOfWord(uint character) {
    return QChar::isLetterOrNumber(character) || QChar::isMark(character);
}

bool isWordAt(const QString& text, int position, const QString& word) {
    const int end = position + word.size();
    return end <= text.size() && text.midRef(position, word.size()).compare(word, Qt::CaseInsensitive) == 0 &&
           (position == 0 || !isOfWord(characterBefore(text, position))) &&
           (end == text.size() || !isOfWord(characterAt(text, end)));
}

bool isSeparator(QChar character) {
    return character == QLatin1Char('\\') || character == QLatin1Char('/');
}

/// As in JSON: "J\u00f6rdis".
QString escaped(const QString& name) {
    QString text;
    for (const QChar character : name) {
        const ushort unit = character.unicode();
        text += unit < 0x80 ? QString(character) : QString::asprintf("\\u%04x", static_cast<unsigned>(unit));
    }
    return text;
}

} // namespace

bool containsWord(const QString& text, const QString& word) {
    for (int at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0 && !word.isEmpty();
         at = text.indexOf(word, at + 1, Qt::CaseInsensitive)) {
        if (isWordAt(text, at, word)) {
            return true;
        }
    }
    return false;
}

QString shortFormOf(const QString& name) {
    QString letters = name;
    letters.remove(QLatin1Char(' ')).remove(QLatin1Char('.'));
    const bool isShort = letters == name && name.size() <= 8;
    return isShort || letters.isEmpty() ? QString() : letters.left(lettersOfShortForm) + QLatin1Char('~');
}

NeutralNames::NeutralNames(const std::vector<PrivateName>& names, const QString& profilesFolder)
    : m_profilesFolder(profilesFolder) {
    for (const PrivateName& name : names) {
        add(name);
    }
    std::stable_sort(m_needles.begin(), m_needles.end(),
                     [](const Needle& a, const Needle& b) { return a.text.size() > b.text.size(); });
}

void NeutralNames::add(const PrivateName& name) {
    QStringList forms = {name.name, escaped(name.name), QString::fromLatin1(QUrl::toPercentEncoding(name.name))};
    forms.removeDuplicates();
    for (const QString& form : forms) {
        m_needles.push_back({form, name.neutral, name.isEverywhere});
    }
    const QString shortForm = shortFormOf(name.name);
    for (int number = 1; number <= 9 && !shortForm.isEmpty(); ++number) {
        m_needles.push_back({shortForm + QString::number(number), name.neutral, name.isEverywhere});
    }
}

QString NeutralNames::text(const QString& text) const {
    QString result;
    int taken = 0;
    for (int at = 0; at < text.size();) {
        const Needle* const needle = needleAt(text, at);
        if (needle == nullptr) {
            ++at;
            continue;
        }
        result += text.midRef(taken, at - taken) + needle->neutral;
        at += needle->text.size();
        taken = at;
    }
    return taken == 0 ? text : result + text.midRef(taken);
}

const NeutralNames::Needle* NeutralNames::needleAt(const QString& text, int position) const {
    if (position > 0 && isOfWord(characterBefore(text, position))) {
        return nullptr; // quickly, as most characters are within a word
    }
    const auto found = std::find_if(m_needles.begin(), m_needles.end(), [&](const Needle& needle) {
        return isWordAt(text, position, needle.text) && (needle.isEverywhere || isBelowProfiles(text, position));
    });
    return found != m_needles.end() ? &*found : nullptr;
}

bool NeutralNames::isBelowProfiles(const QString& text, int position) const {
    int end = position;
    while (end > 0 && isSeparator(text.at(end - 1))) { // doubled in JSON and in Steam's files
        --end;
    }
    const int begin = end - m_profilesFolder.size();
    return end < position && begin > 0 && isSeparator(text.at(begin - 1)) && isWordAt(text, begin, m_profilesFolder);
}

} // namespace Recordings
