#include "support/WholeFile.h"

#include <QFile>

QByteArray readWholeFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
