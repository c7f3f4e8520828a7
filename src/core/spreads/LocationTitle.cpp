#include "core/spreads/LocationTitle.h"

#include <QFontMetrics>
#include <QRect>

#include "core/platform/Twips.h"
#include "core/records/Records.h"

QFont LocationTitleFont() {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(11);
    return font;
}

QString NumberedLocationTitle(int number, const QString& title) {
    return QStringLiteral("%1. %2").arg(number).arg(TrimField(title));
}

bool FitsLocationTitle(const QString& text) {
    const QRect label(0, 0, TwipsToPixels(LocationTitleWidth), TwipsToPixels(LocationTitleHeight));
    return label.contains(
        QFontMetrics(LocationTitleFont()).boundingRect(label, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, text));
}
