#pragma once
// The printer over Qt's QPrinter: real printers and PDF files. Coordinates
// are twips from the paper's corner. The pages of a job are kept until
// EndDoc sends them, so that KillDoc can still drop them. All jobs of one
// print go to one output (one spool job, one PDF file), which Close completes.
// The print routines reach the printer in use through CurrentPrinter(); the
// printer dialogue chooses it.
#include <QFont>
#include <QList>
#include <QPainter>
#include <QPrinter>
#include <functional>
#include <memory>

#include "core/platform/Printer.h"

class CommonDialog;

class QtPrinter : public Printer {
public:
    QtPrinter();
    ~QtPrinter() override;

    QPrinter& Device() { return printer_; }

    int Width() const override;
    int Height() const override;
    int TextWidth(const QString& text) const override;
    int TextHeight() const override;
    void PaintPicture(const QImage& picture, int x, int y, int width, int height) override;
    void NewPage() override;
    void EndDoc() override;
    void KillDoc() override;
    void FillRect(int x, int y, int width, int height, int colour) override;
    void PrintInBox(const QString& text, int x, int y, int width, int height, int flags) override;
    void Close() override;

protected:
    void DrawText(const QString& text) override;

private:
    using Op = std::function<void(QPainter&)>;
    using Page = QList<Op>;

    QFont Font() const;
    // The page that output goes on, begun if none is open.
    Page& OpenPage();
    void Send(const QList<Page>& pages);

    QPrinter printer_;
    QPainter painter_;
    QList<Page> pages_;  // the job's pages, the last one open while pageOpen_
    bool pageOpen_ = false;
    int pagesOut_ = 0;  // pages already sent to the output
};

// The printer that print routines use. Until one is chosen, it is the
// system's default printer.
Printer& CurrentPrinter();
void SetCurrentPrinter(std::shared_ptr<Printer> printer);

// The printer dialogue. CancelError, Flags, FromPage, ToPage and Copies of
// the dialogue control are honoured as the toolkit's dialogue does: a
// cancelled dialogue raises error 32755 when CancelError is set, else it
// returns false. On acceptance the chosen printer becomes CurrentPrinter().
bool ShowPrinter(CommonDialog& dialog);

// The printer dialogue's flags used here.
constexpr int cdlPDNoPageNums = 8;
constexpr int cdlPDNoSelection = 4;
constexpr int cdlPDCollate = 16;

// Scripted answers to the printer dialogue for tests: once enabled the
// dialogue never opens; each showing takes the next answer, and an empty
// queue cancels.
namespace PrinterDialogScript {
void Enable();
void Disable();
bool Enabled();
void Cancel();
// The user picks "Print to File (PDF)" on letter paper and names the file.
void PrintToPdf(const QString& path);
// The user picks the given printer (a RecordingPrinter in most tests).
void PrintTo(std::shared_ptr<Printer> printer);
void Clear();
int Pending();
// The Flags of each dialogue shown since Clear.
const QList<int>& Shown();
}  // namespace PrinterDialogScript
