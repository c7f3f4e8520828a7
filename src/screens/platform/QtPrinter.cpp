#include "screens/platform/QtPrinter.h"

#include <QAbstractPrintDialog>
#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPointer>
#include <QPrintDialog>
#include <QtMath>

#include "core/platform/Errors.h"
#include "screens/platform/CommonDialog.h"

namespace {

constexpr double TwipsPerPoint = 20.0;
constexpr double TwipsPerInch = 1440.0;

QColor FromLongColour(int colour) { return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF); }

// A font of the given points, measured in twips: painting happens in twips.
QFont TwipsFont(QFont font, double points, bool bold) {
    font.setPixelSize(qMax(1, qRound(points * TwipsPerPoint)));
    font.setBold(bold);
    return font;
}

}  // namespace

QtPrinter::QtPrinter() : printer_(QPrinter::HighResolution) {
    // Positions are measured from the paper's edge, as the pages are laid out.
    printer_.setFullPage(true);
}

QtPrinter::~QtPrinter() {
    if (painter_.isActive()) painter_.end();
}

int QtPrinter::Width() const { return qRound(printer_.pageLayout().fullRectPoints().width() * TwipsPerPoint); }

int QtPrinter::Height() const { return qRound(printer_.pageLayout().fullRectPoints().height() * TwipsPerPoint); }

QFont QtPrinter::Font() const { return TwipsFont(QApplication::font(), FontSize, FontBold); }

int QtPrinter::TextWidth(const QString& text) const { return qRound(QFontMetricsF(Font()).horizontalAdvance(text)); }

int QtPrinter::TextHeight() const { return qRound(QFontMetricsF(Font()).height()); }

QtPrinter::Page& QtPrinter::OpenPage() {
    if (!pageOpen_) {
        pages_.append(Page());
        pageOpen_ = true;
    }
    return pages_.last();
}

void QtPrinter::DrawText(const QString& text) {
    const QFont font = Font();
    const QColor colour = FromLongColour(ForeColor);
    const QPointF at(CurrentX, CurrentY + QFontMetricsF(font).ascent());
    OpenPage().append([font, colour, at, text](QPainter& p) {
        p.setFont(font);
        p.setPen(colour);
        p.drawText(at, text);
    });
}

void QtPrinter::PaintPicture(const QImage& picture, int x, int y, int width, int height) {
    if (picture.isNull() || width <= 0 || height <= 0) return;
    const QRectF rect(x, y, width, height);
    OpenPage().append([picture, rect](QPainter& p) {
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.drawImage(rect, picture);
    });
}

void QtPrinter::NewPage() {
    // A page that was ended and nothing put on the next one gives no blank
    // sheet at the end of the job.
    if (!pageOpen_) pages_.append(Page());
    pageOpen_ = false;
}

void QtPrinter::EndDoc() {
    // A trailing empty page, left by NewPage, is not a sheet.
    while (!pages_.isEmpty() && pages_.last().isEmpty()) pages_.removeLast();
    const QList<Page> pages = pages_;
    pages_.clear();
    pageOpen_ = false;
    Send(pages);
}

void QtPrinter::KillDoc() {
    pages_.clear();
    pageOpen_ = false;
}

void QtPrinter::FillRect(int x, int y, int width, int height, int colour) {
    const QRectF rect(x, y, width, height);
    const QColor fill = FromLongColour(colour);
    OpenPage().append([rect, fill](QPainter& p) { p.fillRect(rect, fill); });
}

void QtPrinter::PrintInBox(const QString& text, int x, int y, int width, int height, int flags) {
    const QFont font = Font();
    const QColor colour = FromLongColour(ForeColor);
    const QRectF rect(x, y, width, height);
    OpenPage().append([font, colour, rect, flags, text](QPainter& p) {
        p.save();
        p.setClipRect(rect);
        p.setFont(font);
        p.setPen(colour);
        p.drawText(rect, flags, text);
        p.restore();
    });
}

void QtPrinter::Send(const QList<Page>& pages) {
    if (pages.isEmpty()) return;
    if (!painter_.isActive()) {
        if (!painter_.begin(&printer_)) {
            LastError = 1;
            return;
        }
        LastError = 0;
    }
    const double scale = printer_.resolution() / TwipsPerInch;
    for (const Page& page : pages) {
        if (pagesOut_ > 0) printer_.newPage();
        painter_.save();
        painter_.scale(scale, scale);
        for (const Op& op : page) op(painter_);
        painter_.restore();
        ++pagesOut_;
    }
}

void QtPrinter::Close() {
    KillDoc();
    if (painter_.isActive()) painter_.end();
    pagesOut_ = 0;
}

// ---------------------------------------------------------------------------

namespace {

struct DialogScript {
    bool enabled = false;
    QList<std::shared_ptr<Printer>> answers;  // null cancels
    QList<int> shown;
};

DialogScript& TheScript() {
    static DialogScript s;
    return s;
}

std::shared_ptr<Printer>& ThePrinter() {
    static std::shared_ptr<Printer> printer;
    return printer;
}

}  // namespace

Printer& CurrentPrinter() {
    std::shared_ptr<Printer>& printer = ThePrinter();
    if (!printer) printer = std::make_shared<QtPrinter>();
    return *printer;
}

void SetCurrentPrinter(std::shared_ptr<Printer> printer) { ThePrinter() = std::move(printer); }

bool ShowPrinter(CommonDialog& dialog) {
    DialogScript& s = TheScript();
    std::shared_ptr<Printer> chosen;
    if (s.enabled) {
        s.shown.append(dialog.Flags);
        if (!s.answers.isEmpty()) chosen = s.answers.takeFirst();
    } else {
        // The dialogue works on the printer in use, so that a second print
        // offers what was chosen the first time.
        auto* qtPrinter = dynamic_cast<QtPrinter*>(&CurrentPrinter());
        std::shared_ptr<QtPrinter> fresh;
        if (!qtPrinter) {
            fresh = std::make_shared<QtPrinter>();
            qtPrinter = fresh.get();
        }
        // On the heap under the active screen, which takes it along should
        // it go while the dialogue waits: nothing is printed then.
        QPointer<QPrintDialog> owned = new QPrintDialog(&qtPrinter->Device(), QApplication::activeWindow());
        QPrintDialog& box = *owned;
        QAbstractPrintDialog::PrintDialogOptions options = box.options();
        if (dialog.Flags & cdlPDNoPageNums) options &= ~QAbstractPrintDialog::PrintPageRange;
        if (dialog.Flags & cdlPDNoSelection) options &= ~QAbstractPrintDialog::PrintSelection;
        options |= QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintCollateCopies;
        box.setOptions(options);
        if (dialog.Flags & cdlPDCollate) qtPrinter->Device().setCollateCopies(true);
        if (box.exec() == QDialog::Accepted && owned) {
            dialog.FromPage = box.fromPage();
            dialog.ToPage = box.toPage();
            dialog.Copies = qtPrinter->Device().copyCount();
            if (fresh) chosen = fresh;
            else chosen = ThePrinter();
        }
        delete owned;
    }
    if (!chosen) {
        if (dialog.CancelError) RaiseError(errCancel);
        return false;
    }
    SetCurrentPrinter(chosen);
    return true;
}

namespace PrinterDialogScript {
void Enable() { TheScript().enabled = true; }
void Disable() { TheScript().enabled = false; }
bool Enabled() { return TheScript().enabled; }
void Cancel() { TheScript().answers.append(nullptr); }
void PrintToPdf(const QString& path) {
    auto printer = std::make_shared<QtPrinter>();
    printer->Device().setOutputFormat(QPrinter::PdfFormat);
    printer->Device().setOutputFileName(path);
    printer->Device().setPageSize(QPageSize(QPageSize::Letter));
    printer->Device().setPageOrientation(QPageLayout::Portrait);
    TheScript().answers.append(printer);
}
void PrintTo(std::shared_ptr<Printer> printer) { TheScript().answers.append(std::move(printer)); }
void Clear() {
    TheScript().answers.clear();
    TheScript().shown.clear();
}
int Pending() { return static_cast<int>(TheScript().answers.size()); }
const QList<int>& Shown() { return TheScript().shown; }
}  // namespace PrinterDialogScript
