#include "platform/QtSettings.h"
#include "platform/recorded/RecordedPc.h"
#include "recordings/WindowsNames.h"

#include <QMap>

#include <mutex>

namespace Platform {

namespace {

struct Setting {
    QString name; ///< as it was first written
    QString value;
};

/// The settings of the recorded PC that is chosen. What is set stays until another one is chosen or the process ends:
/// a recording is never written to. Any thread may call.
class RecordedValues {
public:
    QStringList namesBelow(const QString& group) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        QStringList names;
        const QMap<QString, Setting>& settings = current();
        for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
            if (setting.key().startsWith(Recordings::foldName(group))) {
                names.append(setting->name.mid(group.size()));
            }
        }
        return names;
    }

    QString value(const QString& name, const QString& fallback) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return current().value(Recordings::foldName(name), {name, fallback}).value;
    }

    void setValue(const QString& name, const QString& value) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        Setting& setting = current()[Recordings::foldName(name)];
        setting = {setting.name.isEmpty() ? name : setting.name, value};
    }

    void remove(const QString& name) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        current().remove(Recordings::foldName(name));
    }

private:
    QMap<QString, Setting>& current() {
        const std::shared_ptr<const Recorded::RecordedPc> pc = Recorded::currentPc();
        if (pc != m_pc) {
            m_pc = pc;
            m_settings = recorded(*pc);
        }
        return m_settings;
    }

    // All that a recording has of the user's settings.
    static QMap<QString, Setting> recorded(const Recorded::RecordedPc& pc) {
        QMap<QString, Setting> settings;
        const QMap<QString, QString>& locations = pc.description().userLocations;
        for (auto location = locations.begin(); location != locations.end(); ++location) {
            const QString name = QLatin1String("Veltrane/Quorvan/UserProvidedLocations/") + location.key();
            settings.insert(Recordings::foldName(name), {name, location.value()});
        }
        return settings;
    }

    std::mutex m_mutex;
    std::shared_ptr<const Recorded::RecordedPc> m_pc;
    QMap<QString, Setting> m_settings; ///< by folded name
};

RecordedValues& recordedValues() {
    static RecordedValues values;
    return values;
}

class RecordedSettings final : public UserSettings {
public:
    explicit RecordedSettings(QString group)
        : m_group(std::move(group)) {}

    QStringList allKeys() const override { return recordedValues().namesBelow(m_group); }

    QString value(const QString& key, const QString& fallback) const override {
        return recordedValues().value(m_group + key, fallback);
    }

    void setValue(const QString& key, const QString& value) override {
        recordedValues().setValue(m_group + key, value);
    }

    void remove(const QString& key) override { recordedValues().remove(m_group + key); }

    void sync() override {}

private:
    QString m_group; ///< with a slash at its end
};

} // namespace

std::unique_ptr<UserSettings> openUserSettings(const QString& organisation, const QString& application,
                                               const QString& group) {
    if (!Recorded::currentPc()->isActive()) {
        return std::make_unique<QtSettings>(organisation, application, group);
    }
    return std::make_unique<RecordedSettings>(organisation + QLatin1Char('/') + application + QLatin1Char('/') + group +
                                              QLatin1Char('/'));
}

} // namespace Platform
