#pragma once
// Page 1 of a printed reading or diary entry: a letter-size sheet (11970 by
// 15855 twips) with the maker's address, "Page 1", the program's name, the
// spread as it lies with its cards, the spread, deck, date and time, the
// issue, and the two designers' copyright lines. It is never shown: it is
// filled, sent to the printer whole and unloaded.
#include "core/platform/Arrays.h"
#include "screens/platform/Form.h"

class ClickLabel;
class ImageBox;
class QLabel;

class frmPrintingReading : public Form {
    Q_OBJECT
public:
    frmPrintingReading();

    static constexpr int PageWidth = 11970;
    static constexpr int PageHeight = 15855;
    static constexpr int MaxLocations = 32;

    QLabel* lblTheIssue = nullptr;     // the maker's web address
    QLabel* lblPageNumber = nullptr;
    QLabel* Label1 = nullptr;          // "Cartomar"
    QWidget* picSpread = nullptr;
    ImageBox* imgBackground = nullptr;
    QLabel* Label100 = nullptr;        // "Spread:"
    QLabel* Label2 = nullptr;
    QLabel* Label101 = nullptr;        // "Deck:"
    QLabel* Label3 = nullptr;
    QLabel* Label102 = nullptr;        // "Date & Time:"
    QLabel* lblNow = nullptr;
    QLabel* Label5 = nullptr;          // "Title:"
    QLabel* lblTitle = nullptr;        // the issue
    QLabel* lblCpyS = nullptr;         // the spread designer's line
    QLabel* lblCpyD = nullptr;         // the deck designer's line

    BoundedArray<ClickLabel*> picLocation;
    BoundedArray<ImageBox*> imgCard;
    BoundedArray<QLabel*> lblCardTitle;
    BoundedArray<QLabel*> lblCardName;
    BoundedArray<QLabel*> lblCardNumber;

protected:
    void Form_Load() override;
};
