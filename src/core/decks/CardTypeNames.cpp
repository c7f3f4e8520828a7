#include "core/decks/CardTypeNames.h"

#include <QCoreApplication>

#include "core/records/Records.h"

QString CardTypeNamesProblem(const QStringList& names) {
    QStringList named;
    for (const QString& name : names) {
        const QString trimmed = TrimField(name);
        if (trimmed.isEmpty()) continue;
        if (named.contains(trimmed))
            return QCoreApplication::translate(
                "CardTypeNames", "The names you chose for the types are not unique. Please change duplicate names.");
        named.append(trimmed);
    }
    return QString();
}
