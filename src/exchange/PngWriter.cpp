#include "exchange/PngWriter.h"

#include "foundation/UserFile.h"
#include "raster/GradientPicture.h"

#include <algorithm>
#include <csetjmp>
#include <memory>
#include <png.h>
#include <span>
#include <vector>

namespace tessaly {
namespace {

// For smooth colours: what compresses harder takes longer and saves a tenth to two fifths.
constexpr int compression = 1;
constexpr int filter = PNG_FILTER_SUB;
constexpr std::size_t chunkSize = std::size_t{1} << 18U;    // bytes that are written at once
constexpr std::size_t pixelsAtOnce = std::size_t{1} << 16U; // at least a row

struct Writing {
    const GradientPicture& picture;
    const ByteSink& sink;
    const Progress& progress;
    std::vector<std::uint32_t> pixels; // of some rows
    std::error_code error{};           // of the sink
};

[[noreturn]] void fail(png_structp png, png_const_charp /*message*/) {
    png_longjmp(png, 1);
}

void ignore(png_structp /*png*/, png_const_charp /*warning*/) {}

void pass(png_structp png, png_bytep bytes, std::size_t size) {
    auto& writing = *static_cast<Writing*>(png_get_io_ptr(png));
    writing.error = writing.sink({reinterpret_cast<const char*>(bytes), size});
    if (writing.error) {
        png_error(png, "");
    }
}

void flush(png_structp /*png*/) {}

class Png {
  public:
    explicit Png(Writing& writing)
        : png_{png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, ignore)},
          info_{png_ != nullptr ? png_create_info_struct(png_) : nullptr} {
        if (info_ != nullptr) {
            png_set_write_fn(png_, &writing, pass, flush);
        }
    }
    Png(const Png&) = delete;
    Png& operator=(const Png&) = delete;
    ~Png() { png_destroy_write_struct(&png_, &info_); }

    explicit operator bool() const { return info_ != nullptr; }
    png_structp png() const { return png_; }
    png_infop info() const { return info_; }

  private:
    png_structp png_;
    png_infop info_;
};

void writeHeader(const Png& png, const GradientPicture& picture) {
    png_set_IHDR(png.png(), png.info(), static_cast<png_uint_32>(picture.width()),
                 static_cast<png_uint_32>(picture.height()), 8, PNG_COLOR_TYPE_RGBA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_sRGB(png.png(), png.info(), PNG_sRGB_INTENT_PERCEPTUAL);
    png_set_filter(png.png(), PNG_FILTER_TYPE_DEFAULT, filter);
    png_set_compression_level(png.png(), compression);
    png_set_compression_buffer_size(png.png(), chunkSize);
    png_write_info(png.png(), png.info());
}

// False: the progress ended it.
bool writeRows(const Png& png, Writing& writing) {
    const GradientPicture& picture = writing.picture;
    const auto columns = static_cast<std::size_t>(picture.width());
    const auto rowsAtOnce = static_cast<int>(writing.pixels.size() / columns);
    for (int first = 0; first < picture.height(); first += rowsAtOnce) {
        const int rows = std::min(rowsAtOnce, picture.height() - first);
        const auto pixels = std::span{writing.pixels}.first(static_cast<std::size_t>(rows) * columns);
        picture.fillRows(first, pixels);
        for (std::size_t start = 0; start < pixels.size(); start += columns) {
            png_write_row(png.png(), reinterpret_cast<png_const_bytep>(&pixels[start]));
        }
        if (writing.progress && !writing.progress(static_cast<double>(first + rows) / picture.height())) {
            return false;
        }
    }
    return true;
}

// libpng jumps back to here from wherever it fails. So nothing on the way may have to be cleaned up.
std::error_code write(const Png& png, Writing& writing) {
    if (setjmp(png_jmpbuf(png.png())) != 0) { // NOLINT(cert-err52-cpp): the library knows no other way
        return writing.error ? writing.error : std::make_error_code(std::errc::not_enough_memory);
    }
    writeHeader(png, writing.picture);
    if (!writeRows(png, writing)) {
        return std::make_error_code(std::errc::operation_canceled);
    }
    png_write_end(png.png(), nullptr);
    return {};
}

} // namespace

std::error_code writePng(const GradientPicture& picture, const ByteSink& sink, const Progress& progress) {
    const auto columns = static_cast<std::size_t>(picture.width());
    const std::size_t rows =
        std::clamp<std::size_t>(pixelsAtOnce / columns, 1, static_cast<std::size_t>(picture.height()));
    Writing writing{picture, sink, progress, std::vector<std::uint32_t>(rows * columns)};
    const Png png{writing};
    return png ? write(png, writing) : std::make_error_code(std::errc::not_enough_memory);
}

std::error_code writePngFile(const GradientPicture& picture, const std::filesystem::path& file,
                             const Progress& progress) {
    UserFile written{file};
    const std::error_code error = writePng(
        picture, [&](std::string_view bytes) { return written.write(bytes); }, progress);
    return error ? error : written.commit(AtomicFile::Durability::Forced);
}

} // namespace tessaly
