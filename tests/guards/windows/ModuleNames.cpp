#include "guards/windows/ModuleNames.h"

#include <QFile>

#include <windows.h>

namespace {

/// The file of a program or library, whose parts know each other by their addresses in memory.
class Image {
public:
    explicit Image(const QByteArray& file)
        : m_file(file) {
        if (const auto* dos = inFile<IMAGE_DOS_HEADER>(0)) {
            m_header = inFile<IMAGE_NT_HEADERS64>(static_cast<DWORD>(dos->e_lfanew));
        }
    }

    DWORD directory(int index) const {
        return m_header != nullptr ? m_header->OptionalHeader.DataDirectory[index].VirtualAddress : 0;
    }

    /// Null where the file has nothing.
    template <class Entry>
    const Entry* at(DWORD address) const {
        const auto* section = IMAGE_FIRST_SECTION(m_header);
        for (int left = m_header->FileHeader.NumberOfSections; left > 0; --left, ++section) {
            if (address >= section->VirtualAddress && address - section->VirtualAddress < section->SizeOfRawData) {
                return inFile<Entry>(address - section->VirtualAddress + section->PointerToRawData);
            }
        }
        return nullptr;
    }

private:
    template <class Entry>
    const Entry* inFile(DWORD offset) const {
        const auto size = static_cast<DWORD>(m_file.size());
        return offset <= size && sizeof(Entry) <= size - offset
                   ? reinterpret_cast<const Entry*>(m_file.constData() + offset)
                   : nullptr;
    }

    const QByteArray m_file;
    const IMAGE_NT_HEADERS64* m_header = nullptr;
};

QByteArrayList exportsOf(const Image& image) {
    QByteArrayList names;
    const DWORD address = image.directory(IMAGE_DIRECTORY_ENTRY_EXPORT);
    const auto* table = address != 0 ? image.at<IMAGE_EXPORT_DIRECTORY>(address) : nullptr;
    const DWORD* addresses = table != nullptr ? image.at<DWORD>(table->AddressOfNames) : nullptr;
    for (DWORD i = 0; addresses != nullptr && i < table->NumberOfNames; ++i) {
        names.append(image.at<char>(addresses[i]));
    }
    return names;
}

/// The names of a list that ends with zero. What is imported by number has none.
QByteArrayList namesIn(const Image& image, DWORD list) {
    QByteArrayList names;
    for (const auto* entry = image.at<IMAGE_THUNK_DATA64>(list); entry->u1.AddressOfData != 0; ++entry) {
        if (!IMAGE_SNAP_BY_ORDINAL64(entry->u1.Ordinal)) {
            const auto name = static_cast<DWORD>(entry->u1.AddressOfData + offsetof(IMAGE_IMPORT_BY_NAME, Name));
            names.append(image.at<char>(name));
        }
    }
    return names;
}

std::map<QByteArray, QByteArrayList> importsOf(const Image& image) {
    std::map<QByteArray, QByteArrayList> names;
    const DWORD address = image.directory(IMAGE_DIRECTORY_ENTRY_IMPORT);
    const auto* dll = address != 0 ? image.at<IMAGE_IMPORT_DESCRIPTOR>(address) : nullptr;
    for (; dll != nullptr && dll->Name != 0; ++dll) {
        names[image.at<char>(dll->Name)] += namesIn(image, dll->OriginalFirstThunk);
    }
    return names;
}

} // namespace

ModuleNames namesOfModule(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const Image image(file.readAll());
    return {exportsOf(image), importsOf(image)};
}

bool namesStandardType(const QByteArray& symbol) {
    if (symbol.startsWith('?')) {
        return symbol.contains("@std@");
    }
    // GCC writes a name as its length and itself, "std" as "St", and the commonest types of it as "S" and a letter.
    for (int i = symbol.startsWith("_Z") ? 2 : symbol.size(); i < symbol.size(); ++i) {
        int length = 0;
        for (; i < symbol.size() && symbol[i] >= '0' && symbol[i] <= '9'; ++i) {
            length = 10 * length + (symbol[i] - '0');
        }
        if (length > 0) {
            i += length - 1;
        } else if (symbol[i] == 'S' && i + 1 < symbol.size() && QByteArray("tabsiod").contains(symbol[i + 1])) {
            return true;
        }
    }
    return false;
}
