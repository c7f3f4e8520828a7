#include "support/RecordingPrinter.h"

RecordingPrinter::RecordingPrinter(int width, int height, int charWidth, int lineHeight)
    : width_(width), height_(height), charWidth_(charWidth), lineHeight_(lineHeight) {}

int RecordingPrinter::TextWidth(const QString& text) const {
    return static_cast<int>(text.size() - text.count(QLatin1Char('\r')) - text.count(QLatin1Char('\n'))) * charWidth_;
}

void RecordingPrinter::Record(const QString& op, const QString& text, int x, int y, int w, int h) {
    Calls.append({op, text, x, y, w, h, FontBold, FontSize, ForeColor});
}

void RecordingPrinter::DrawText(const QString& text) { Record(QStringLiteral("Print"), text, CurrentX, CurrentY); }

void RecordingPrinter::PaintPicture(const QImage&, int x, int y, int width, int height) {
    Record(QStringLiteral("PaintPicture"), QString(), x, y, width, height);
}

void RecordingPrinter::NewPage() { Record(QStringLiteral("NewPage")); }
void RecordingPrinter::EndDoc() { Record(QStringLiteral("EndDoc")); }
void RecordingPrinter::KillDoc() { Record(QStringLiteral("KillDoc")); }
void RecordingPrinter::Close() { Record(QStringLiteral("Close")); }

void RecordingPrinter::FillRect(int x, int y, int width, int height, int colour) {
    Record(QStringLiteral("FillRect"), QString(), x, y, width, height);
    Calls.last().Colour = colour;
}

void RecordingPrinter::PrintInBox(const QString& text, int x, int y, int width, int height, int) {
    Record(QStringLiteral("PrintInBox"), text, x, y, width, height);
}

QStringList RecordingPrinter::Texts() const {
    QStringList texts;
    for (const PrinterCall& call : Calls)
        if (call.Op == QLatin1String("Print")) texts.append(call.Text);
    return texts;
}

QList<PrinterCall> RecordingPrinter::CallsOf(const QString& op) const {
    QList<PrinterCall> out;
    for (const PrinterCall& call : Calls)
        if (call.Op == op) out.append(call);
    return out;
}
