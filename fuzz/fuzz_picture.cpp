// Arbitrary bytes loaded as a picture, as a card's or a spread's picture file
// is loaded: whatever the bytes, the answer is a picture with its size in
// twips or the toolkit's "Invalid picture" error, never a crash and never a
// picture larger than the reader's allocation limit allows.
#include "FuzzSupport.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/Picture.h"
#include "core/platform/Twips.h"
#include "core/store/RunState.h"

using Fuzz::Expect;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    Fuzz::Initialize(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The extension says bitmap whatever the bytes are, as a renamed file
    // would: the reader must go by the content.
    const QString path = TheRun.Paths.CardsDir + QStringLiteral("CU00001.bmp");
    WriteWholeFile(path, Fuzz::Bytes(data, size));
    try {
        const Picture picture = LoadPicture(path);
        Expect(!picture.IsNull(), "a null picture loaded without an error");
        Expect(picture.Width == PixelsToTwips(picture.Image.width()) &&
                   picture.Height == PixelsToTwips(picture.Image.height()),
               "a picture's size in twips is wrong");
    } catch (const RuntimeError& error) {
        Expect(error.Number() == errInvalidPicture, "a picture failed with another error than Invalid picture");
    }
    Fuzz::CheckNothingOutsideTouched();
    return 0;
}
