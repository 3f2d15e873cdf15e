// The canvas's PNG files read back as the same pixels that Cairo's own writer gives, for an
// opaque picture and for one with see-through parts.

#include "platform/gdi/canvas/Canvas.h"
#include "platform/gdi/canvas/PngWriter.h"

#include <gtest/gtest.h>

#include <cairo.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr int kWidth = 173; // odd sizes, so that no row ends on a word boundary
constexpr int kHeight = 61;
constexpr COLORREF kRed = RGB(220, 20, 60);
constexpr COLORREF kBlue = RGB(30, 60, 200);
constexpr unsigned char kPngSignature[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

struct Reader {
    const std::string* bytes;
    size_t offset = 0;
};

cairo_status_t ReadBytes(void* closure, unsigned char* data, unsigned int length) {
    auto* reader = static_cast<Reader*>(closure);
    if (reader->offset + length > reader->bytes->size())
        return CAIRO_STATUS_READ_ERROR;
    std::memcpy(data, reader->bytes->data() + reader->offset, length);
    reader->offset += length;
    return CAIRO_STATUS_SUCCESS;
}

cairo_status_t AppendBytes(void* closure, const unsigned char* data, unsigned int length) {
    static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

// The decoded pixels as premultiplied ARGB words, with the format Cairo chose for them.
struct Decoded {
    cairo_format_t format = CAIRO_FORMAT_INVALID;
    std::vector<std::uint32_t> pixels;
};

Decoded Decode(const std::string& png) {
    Reader reader{&png};
    cairo_surface_t* image = cairo_image_surface_create_from_png_stream(ReadBytes, &reader);
    Decoded decoded;
    if (cairo_surface_status(image) == CAIRO_STATUS_SUCCESS) {
        decoded.format = cairo_image_surface_get_format(image);
        const int stride = cairo_image_surface_get_stride(image);
        const unsigned char* data = cairo_image_surface_get_data(image);
        for (int y = 0; y < cairo_image_surface_get_height(image); ++y)
            for (int x = 0; x < cairo_image_surface_get_width(image); ++x) {
                std::uint32_t pixel;
                std::memcpy(&pixel, data + y * stride + x * 4, 4);
                decoded.pixels.push_back(pixel);
            }
    }
    cairo_surface_destroy(image);
    return decoded;
}

std::string CairoPng(const unsigned char* pixels, int width, int height, int stride) {
    cairo_surface_t* view = cairo_image_surface_create_for_data(
        const_cast<unsigned char*>(pixels), CAIRO_FORMAT_ARGB32, width, height, stride);
    std::string png;
    cairo_surface_write_to_png_stream(view, AppendBytes, &png);
    cairo_surface_destroy(view);
    return png;
}

void DrawShapes(Canvas& canvas) {
    const double zigzag[] = {3, 50, 40, 5, 80, 55, 120, 8, 170, 58};
    canvas.Polyline(zigzag, 5, kRed, 2.5);
    canvas.FillCircle(60, 30, 17.3, kBlue);
    canvas.DrawText(CanvasFont{}, "PNG 1.5e+003", 90, 20, kBlue);
}

void ExpectSamePixelsAsCairo(const unsigned char* pixels, int width, int height, int stride,
                             cairo_format_t format) {
    const std::string ours = EncodePng(pixels, width, height, stride);
    ASSERT_GE(ours.size(), sizeof kPngSignature);
    EXPECT_EQ(std::memcmp(ours.data(), kPngSignature, sizeof kPngSignature), 0);
    const Decoded expected = Decode(CairoPng(pixels, width, height, stride));
    const Decoded decoded = Decode(ours);
    EXPECT_EQ(decoded.format, format);
    EXPECT_EQ(decoded.format, expected.format);
    ASSERT_EQ(decoded.pixels.size(), size_t(width * height));
    EXPECT_TRUE(decoded.pixels == expected.pixels);
}

TEST(CanvasPng, OpaqueAndSeeThroughPicturesReadBackAsCairosOwnFiles) {
    auto canvas = Canvas::CreateImage(kWidth, kHeight);
    DrawShapes(*canvas);
    int stride = 0;
    const unsigned char* pixels = canvas->Pixels(&stride);
    ExpectSamePixelsAsCairo(pixels, kWidth, kHeight, stride, CAIRO_FORMAT_RGB24);

    // Every alpha over a spread of colours, premultiplied as Cairo keeps them.
    std::vector<std::uint32_t> argb(size_t(kWidth) * kHeight);
    for (size_t i = 0; i < argb.size(); ++i) {
        const std::uint32_t alpha = i % 256, colour = std::uint32_t(i * 2654435761u);
        const auto premultiplied = [alpha](std::uint32_t channel) {
            return (channel & 0xFF) * alpha / 255;
        };
        argb[i] = alpha << 24 | premultiplied(colour >> 16) << 16 |
                  premultiplied(colour >> 8) << 8 | premultiplied(colour);
    }
    ExpectSamePixelsAsCairo(reinterpret_cast<const unsigned char*>(argb.data()), kWidth, kHeight,
                            kWidth * 4, CAIRO_FORMAT_ARGB32);
}

TEST(CanvasPng, FilesAreWrittenWholeOrReportFailure) {
    auto canvas = Canvas::CreateImage(kWidth, kHeight);
    canvas->Clear(RGB(255, 255, 255));
    DrawShapes(*canvas);
    const std::string path = ::testing::TempDir() + "canvas-png-test.png";
    ASSERT_TRUE(canvas->SavePng(path.c_str()));
    cairo_surface_t* read = cairo_image_surface_create_from_png(path.c_str());
    EXPECT_EQ(cairo_surface_status(read), CAIRO_STATUS_SUCCESS);
    EXPECT_EQ(cairo_image_surface_get_width(read), kWidth);
    cairo_surface_destroy(read);
    std::remove(path.c_str());
    EXPECT_FALSE(canvas->SavePng("/no/such/folder/picture.png"));
    auto svg = Canvas::CreateSvg(kWidth, kHeight);
    EXPECT_TRUE(svg->EncodePng().empty());
}

} // namespace
