#include "store/native_format.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>
#include <vector>

#include "platform/utf8.h"
#include "store/native_versions.h"

namespace tessaline {
namespace {

// Numbers are copied between payload and memory as they are.
static_assert(std::endian::native == std::endian::little);
static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == 8);

constexpr std::array<std::uint8_t, 4> kMagic = {'G', 'F', 'E', 'D'};
constexpr std::size_t kHead = kMagic.size() + sizeof(kNewestVersion);
constexpr std::uint32_t kMostElements = 1000;
constexpr std::uint32_t kLongestText = 16 * 1024 * 1024;  // bytes

template <typename Record>
concept HasFields = requires(const Record& record) {
    FieldsOf(record);
};

class Writer {
  public:
    explicit Writer(SecretBytes& bytes) : bytes_(bytes) {}

    void Put(std::uint32_t number) { PutNumber(number); }
    void Put(std::int32_t number) { PutNumber(number); }
    void Put(std::int64_t number) { PutNumber(number); }
    void Put(double number) { PutNumber(number); }
    void Put(bool flag) { bytes_.push_back(flag ? 1 : 0); }

    void Put(const std::wstring& text) {
        const std::size_t start = bytes_.size();
        Put(std::uint32_t{0});
        AppendUtf8(bytes_, text);
        StoreNumber(start,
                    static_cast<std::uint32_t>(bytes_.size() - start - sizeof(std::uint32_t)));
    }

    template <typename Element>
    void Put(const std::vector<Element>& list) {
        Put(static_cast<std::uint32_t>(list.size()));
        for (const Element& element : list) Put(element);
    }

    template <HasFields Record>
    void Put(const Record& record) {
        ForEachField(record, [this](const wchar_t*, const auto& value) { this->Put(value); });
    }

  private:
    template <typename Number>
    void PutNumber(Number number) {
        const std::size_t at = bytes_.size();
        bytes_.resize(at + sizeof(Number));
        StoreNumber(at, number);
    }

    template <typename Number>
    void StoreNumber(std::size_t at, Number number) {
        std::memcpy(bytes_.data() + at, &number, sizeof(Number));
    }

    SecretBytes& bytes_;
};

// Walks the payload. A field that runs past the end, or a text that is too long, makes the payload
// damaged. The walk goes on from where it stands and the damage is reported at its end; only a
// list count above the limit ends the walk at once, and its message takes precedence.
class Reader {
  public:
    explicit Reader(ByteView rest) : rest_(rest) {}

    /// The text for the user; null when every field has been read.
    [[nodiscard]] const wchar_t* Failure() const {
        if (badCount_ != nullptr) return badCount_;
        return damaged_ ? L"The estimate file is incomplete or damaged." : nullptr;
    }

    void Take(std::int32_t& number) { number = Take<std::int32_t>(); }
    void Take(std::int64_t& number) { number = Take<std::int64_t>(); }
    void Take(double& number) { number = Take<double>(); }
    void Take(bool& flag) { flag = Take<std::uint8_t>() != 0; }

    void Take(std::wstring& text) {
        const std::uint32_t size = Take<std::uint32_t>();
        if (size > rest_.size() || size > kLongestText) damaged_ = true;
        text = FromUtf8(damaged_ ? ByteView() : TakeBytes(size));
    }

    void Take(std::vector<ServiceLine>& lines) {
        TakeElements(lines, L"Invalid service-line count.");
    }
    void Take(std::vector<SeparateItem>& items) {
        TakeElements(items, L"Invalid separately scheduled item count.");
    }

    template <HasFields Record>
    void Take(Record& record) {
        ForEachField(record, [this](const wchar_t*, auto& value) { this->TakeNext(value); });
    }

    /// Takes a field of a record, unless a count before it has ended the walk.
    template <typename Value>
    void TakeNext(Value& value) {
        if (badCount_ == nullptr) Take(value);
    }

    /// The next number; 0 where too little is left.
    template <typename Number>
    [[nodiscard]] Number Take() {
        Number number = 0;
        if (rest_.size() < sizeof(Number)) {
            damaged_ = true;
            return number;
        }
        std::memcpy(&number, TakeBytes(sizeof(Number)).data(), sizeof(Number));
        return number;
    }

  private:
    ByteView TakeBytes(std::size_t size) {
        const ByteView bytes = rest_.first(size);
        rest_ = rest_.subspan(size);
        return bytes;
    }

    template <typename Element>
    void TakeElements(std::vector<Element>& list, const wchar_t* badCount) {
        const std::uint32_t count = Take<std::uint32_t>();
        if (count > kMostElements) {
            badCount_ = badCount;
            return;
        }
        list.clear();
        list.reserve(count);
        for (std::uint32_t i = 0; i < count && !damaged_; ++i) Take(list.emplace_back());
    }

    ByteView rest_;
    bool damaged_ = false;
    const wchar_t* badCount_ = nullptr;
};

// The size of a value in the payload if its texts are ASCII. With this much reserved, a payload is
// seldom moved while it grows; each move would wipe the bytes left behind.
template <typename Value>
std::size_t RoomFor(const Value& value) {
    if constexpr (std::is_same_v<Value, std::wstring>) {
        return sizeof(std::uint32_t) + value.size();
    } else if constexpr (std::is_arithmetic_v<Value>) {
        return sizeof(Value);
    } else if constexpr (HasFields<Value>) {
        std::size_t room = 0;
        ForEachField(value,
                     [&room](const wchar_t*, const auto& field) { room += RoomFor(field); });
        return room;
    } else {
        std::size_t room = sizeof(std::uint32_t);
        for (const auto& element : value) room += RoomFor(element);
        return room;
    }
}

const wchar_t* ReadPayload(ByteView payload, Estimate& estimate) {
    if (payload.size() < kHead || !BeginsWith(payload, kMagic)) {
        return L"The estimate file is not a native GFE file.";
    }
    Reader reader(payload.subspan(kMagic.size()));
    const auto version = reader.Take<std::uint32_t>();
    if (version < 1 || version > kNewestVersion) return L"Unsupported estimate file version.";
    // So that fields which this version does not hold have their defaults.
    estimate = {};
    ForEachNativeField(estimate, version,
                       [&reader](const wchar_t*, auto& value) { reader.TakeNext(value); });
    return reader.Failure();
}

}  // namespace

SecretBytes WriteNativeEstimate(const Estimate& estimate) {
    SecretBytes bytes(kMagic.begin(), kMagic.end());
    std::size_t room = kHead;
    ForEachNativeField(estimate, kNewestVersion,
                       [&room](const wchar_t*, const auto& value) { room += RoomFor(value); });
    bytes.reserve(room);
    Writer writer(bytes);
    writer.Put(kNewestVersion);
    ForEachNativeField(estimate, kNewestVersion,
                       [&writer](const wchar_t*, const auto& value) { writer.Put(value); });
    return bytes;
}

bool ReadNativeEstimate(ByteView payload, Estimate& estimate, std::wstring& error) {
    const wchar_t* failure = ReadPayload(payload, estimate);
    if (failure != nullptr) error = failure;
    return failure == nullptr;
}

}  // namespace tessaline
