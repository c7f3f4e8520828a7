#include "screens/widgets/ScreenPlacement.h"

#include "screens/platform/Form.h"

namespace {

constexpr int EdgeMargin = 50;
constexpr int OwnEdgeOffset = 150;

// (room - size - reserve) / 2, or the edge margin once size + slack no
// longer fits the room.
int Centred(int room, int size, int slack, int reserve) {
    return size + slack > room ? EdgeMargin : (room - size - reserve) / 2;
}

int CentredTop(const Form& form) { return Centred(FrameInnerHeight(), form.Height(), 50, 0); }
int CentredLeft(const Form& form) { return Centred(FrameInnerWidth(), form.Width(), 50, 0); }
int CentredLeftBeside(const Form& form) { return Centred(FrameInnerWidth(), form.Width(), 200, 200); }

}  // namespace

void CentreInFrame(Form& form) { form.Move(CentredLeft(form), CentredTop(form)); }

void PlaceInFrameRight(Form& form, bool atFrameTop) {
    const int top = atFrameTop ? FrameOwnTop() + OwnEdgeOffset : EdgeMargin;
    form.Move(CentredLeft(form), top);
}

void PlaceBesideFrame(Form& form, bool atFrameTop) {
    const int top = atFrameTop ? FrameOwnTop() + OwnEdgeOffset : EdgeMargin;
    form.Move(CentredLeftBeside(form), top);
}

void CentreLowInFrame(Form& form) {
    const int top = Centred(FrameInnerHeight(), form.Height(), 150, 0);
    form.Move(CentredLeftBeside(form), top);
}

void PlaceTopLeft(Form& form, bool atFrameCorner) {
    const int top = atFrameCorner ? FrameOwnTop() + OwnEdgeOffset : EdgeMargin;
    const int left = atFrameCorner ? FrameOwnLeft() + OwnEdgeOffset : EdgeMargin;
    form.Move(left, top);
}
