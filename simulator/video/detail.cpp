#include "simulator/video/detail.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace sim {
namespace {

// Pixels are worked on as bytes here, each component as the others, which compilers turn into instructions for many
// bytes at a time. What that does to alpha is undone at the end of each row.
using Bytes = std::vector<std::uint8_t>;
using Sums = std::vector<std::uint16_t>;
constexpr std::size_t components = 4;

std::uint8_t* bytes_of(Color* row) { return reinterpret_cast<std::uint8_t*>(row); }

void make_opaque(Color* row, int width)
{
    for (int x = 0; x < width; ++x) {
        row[x] |= 0xFF000000U;
    }
}

template <typename Number>
void add(std::uint16_t* sums, const Number* numbers, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        sums[i] = static_cast<std::uint16_t>(sums[i] + numbers[i]);
    }
}

void subtract(std::uint16_t* sums, const std::uint8_t* numbers, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        sums[i] = static_cast<std::uint16_t>(sums[i] - numbers[i]);
    }
}

/// The rows around one row as they were before they were changed, and their sum. Beyond the edges the outermost row
/// goes on.
class Window {
public:
    Window(Image& image, int radius)
        : image_(image), radius_(radius), rows_(static_cast<std::size_t>(2 * radius + 1)),
          sums_(static_cast<std::size_t>(image.size.width) * components)
    {
        for (int y = -radius - 1; y < radius; ++y) {
            take(y);
        }
    }

    /// To be called for one row after the other, from 0.
    void move_to(int y) { take(y + radius_); }
    const Bytes& row(int y) const { return rows_[slot(y)]; }
    const Sums& sums() const { return sums_; }

private:
    std::size_t slot(int y) const { return static_cast<std::size_t>(y + radius_ + 1) % rows_.size(); }

    /// The row comes into the window, and the one that lies in its slot goes.
    void take(int y)
    {
        Bytes& kept = rows_[slot(y)];
        subtract(sums_.data(), kept.data(), kept.size());
        if (y < image_.size.height) {
            const std::uint8_t* row = bytes_of(image_.row(std::max(y, 0)));
            kept.assign(row, row + sums_.size());
        } else {
            kept = rows_[slot(y - 1)];
        }
        add(sums_.data(), kept.data(), kept.size());
    }

    Image& image_;
    int radius_;
    std::vector<Bytes> rows_;
    Sums sums_;
};

/// The sums of the pixels around each pixel of a row, of which the sums by column are given. The outermost columns go
/// on beyond the edges.
void sum_across(const Sums& columns, int radius, Sums& wide, Sums& totals)
{
    const std::size_t margin = static_cast<std::size_t>(radius) * components;
    wide.resize(columns.size() + 2 * margin);
    std::copy(columns.begin(), columns.end(), wide.begin() + static_cast<std::ptrdiff_t>(margin));
    for (std::size_t i = 0; i < margin; ++i) {
        wide[i] = columns[i % components];
        wide[margin + columns.size() + i] = columns[columns.size() - components + i % components];
    }
    totals.assign(columns.size(), 0);
    for (std::size_t shift = 0; shift <= 2 * margin; shift += components) {
        add(totals.data(), wide.data() + shift, totals.size());
    }
}

struct Strength {
    std::uint16_t reciprocal; ///< 65536 by the number of pixels that a mean is made of
    std::int16_t amount;      ///< with the largest difference it fits 16 bits, which is what makes it fast
};

/// Moves each component away from the mean around it, or towards it; the amount counts in 64ths.
void move_from_mean(const std::uint8_t* row, const std::uint16_t* totals, std::size_t count, Strength strength,
                    std::uint8_t* target)
{
    for (std::size_t i = 0; i < count; ++i) {
        const auto mean =
            static_cast<std::uint16_t>(static_cast<std::uint32_t>(totals[i]) * strength.reciprocal >> 16U);
        const auto apart = static_cast<std::int16_t>((row[i] - mean) * strength.amount);
        target[i] = clamped(row[i] + (apart >> 6));
    }
}

/// Deviates by 1 on average; each pixel has a share of its own and one for each component.
std::vector<float> make_grain(std::size_t pixels)
{
    std::mt19937 random(1); // any start does, but always the same
    std::normal_distribution<float> normal;
    std::vector<float> grain;
    for (std::size_t i = 0; i < pixels; ++i) {
        const float light = 0.8F * normal(random);
        for (std::size_t k = 0; k < components; ++k) {
            grain.push_back(light + 0.6F * normal(random));
        }
    }
    return grain;
}

} // namespace

void sharpen(Image& image, double sharpness)
{
    constexpr double hardest = 1.5;
    constexpr int max_radius = 7; // the sum of 15 by 15 bytes fits 16 bits
    if (sharpness == 0 || image.pixels.empty()) {
        return;
    }
    const int radius = std::clamp(image.size.width / 960, 1, max_radius);
    const int side = 2 * radius + 1;
    const Strength strength = {static_cast<std::uint16_t>(65536 / (side * side) + 1),
                               static_cast<std::int16_t>(std::lround(64 * sharpness * (sharpness > 0 ? hardest : 1)))};
    Window window(image, radius);
    Sums wide;
    Sums totals;
    for (int y = 0; y < image.size.height; ++y) {
        window.move_to(y);
        sum_across(window.sums(), radius, wide, totals);
        move_from_mean(window.row(y).data(), totals.data(), totals.size(), strength, bytes_of(image.row(y)));
        make_opaque(image.row(y), image.size.width);
    }
}

void add_noise(Image& image, double deviation, double seconds)
{
    constexpr std::size_t length = 8192;
    static const std::vector<float> grain = make_grain(length);
    if (deviation <= 0) {
        return;
    }
    const std::size_t width = static_cast<std::size_t>(image.size.width) * components;
    std::vector<std::int16_t> shifts(grain.size() + width); // so that a row may begin anywhere in the grain
    for (std::size_t i = 0; i < shifts.size(); ++i) {
        const float shift = std::clamp(static_cast<float>(deviation) * grain[i % grain.size()], -255.0F, 255.0F);
        shifts[i] = static_cast<std::int16_t>(std::lround(shift));
    }
    std::mt19937 random(static_cast<std::uint32_t>(static_cast<std::int64_t>(seconds * 1000)));
    for (int y = 0; y < image.size.height; ++y) {
        const std::int16_t* shift = shifts.data() + random() % length * components;
        std::uint8_t* row = bytes_of(image.row(y));
        for (std::size_t i = 0; i < width; ++i) {
            row[i] = clamped(row[i] + shift[i]);
        }
        make_opaque(image.row(y), image.size.width);
    }
}

} // namespace sim
