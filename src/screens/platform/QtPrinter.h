#pragma once
// The printer over Qt's QPrinter: real printers and PDF files. Coordinates
// are twips from the paper's corner. The pages of a job are kept until
// EndDoc sends them, so that KillDoc can still drop them; a form sent with
// PrintForm goes out at once as a page of its own. All jobs of one print go
// to one output (one spool job, one PDF file), which Close completes.
#include <QFont>
#include <QList>
#include <QPainter>
#include <QPrinter>
#include <functional>

#include "screens/platform/Printer.h"

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
    void PrintForm(QWidget& form) override;
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
    QList<Page> pages_;       // the job's pages, the last one open while pageOpen_
    bool pageOpen_ = false;
    int pagesOut_ = 0;        // pages already sent to the output
};

// Adds the drawing of a screen and all its visible controls, in twips from
// the screen's corner, to a page: backgrounds, pictures and label texts,
// each control above the ones before it.
void AddFormDrawing(QWidget& form, QList<std::function<void(QPainter&)>>& page);
