// What files cost: catalogue, lists, revisions, payloads, the older edition.
#include <windows.h>

#include <psapi.h>
#include <wincrypt.h>

#include <cstdlib>

#include "legacy/legacy_cipher.h"
#include "legacy/legacy_file.h"
#include "model/estimate_fields.h"
#include "platform/files.h"
#include "platform/handles.h"
#include "platform/utf8.h"
#include "store/catalogue.h"
#include "store/envelope.h"
#include "store/estimate_file.h"
#include "store/native_format.h"
#include "store/revision.h"
#include "tests/bench/measure.h"
#include "tests/support/legacy_writer.h"

namespace tessaline::bench {
namespace {

Estimate TypicalEstimate(int number, int lines) {
    Estimate estimate;
    estimate.EstimateId = L"GFE-20260307-" + std::to_wstring(100000 + number);
    estimate.Patient.FirstName = L"Ann";
    estimate.Patient.LastName = L"Lee " + std::to_wstring(number % 2000);
    estimate.Patient.DateOfBirth = L"02/29/1984";
    estimate.Patient.Street = L"12 Oak Street";
    estimate.Patient.City = L"Springfield";
    estimate.Patient.Email = L"ann.lee@example.com";
    estimate.Provider.OrganizationName = L"Clinic " + std::to_wstring(number % 40);
    estimate.Provider.City = L"Springfield";
    estimate.PrimaryService = L"Knee arthroscopy with meniscus repair";
    estimate.ScheduledDates = L"04/01/2026";
    for (int line = 0; line < lines; ++line) {
        estimate.Lines.push_back({L"Surgeon's fee, arthroscopy", L"400 Capitol Avenue",
                                  L"S83.242A", L"CPT", L"29882", 1 + line % 3, 415.5});
    }
    estimate.ProviderNotes = L"Bring a list of your medicines.";
    return estimate;
}

// Without waiting for the disk after each file, as saving does.
void WriteBytes(const std::wstring& path, ByteView bytes) {
    const FileOwner file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                     FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    if (!WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                   nullptr)) {
        std::abort();
    }
}

LocalStore MakeStore(const std::wstring& folder, int files) {
    const LocalStore store = LocalStoreBelow(folder + L"\\" + std::to_wstring(files));
    EnsureFolder(store.EstimatesFolder);
    for (int number = 0; number < files; ++number) {
        std::wstring error;
        const Bytes file =
            ProtectEstimateData(WriteNativeEstimate(TypicalEstimate(number, 6)), error);
        WriteBytes(store.EstimatesFolder + L"\\" + std::to_wstring(number) + L".gfe", file);
    }
    return store;
}

// Opens, reads and unprotects one file by Windows' own calls and gives the result back at once.
std::size_t BareLoad(const std::wstring& path, DATA_BLOB entropy) {
    const FileOwner file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size{};
    GetFileSizeEx(file.Get(), &size);
    Bytes bytes(static_cast<std::size_t>(size.QuadPart));
    DWORD read = 0;
    if (!ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr)) {
        std::abort();
    }
    DATA_BLOB blob{read - 4, bytes.data() + 4};
    DATA_BLOB plain{};
    if (!CryptUnprotectData(&blob, nullptr, &entropy, nullptr, nullptr, CRYPTPROTECT_UI_FORBIDDEN,
                            &plain)) {
        std::abort();
    }
    LocalFree(plain.pbData);
    return plain.cbData;
}

// Lists, opens, reads and unprotects, and does nothing with what comes out.
std::size_t BareCatalogue(const LocalStore& store) {
    wchar_t tag[] = L"KOVAL-DQX-STRATA-8391";
    const DATA_BLOB entropy{sizeof(tag), reinterpret_cast<BYTE*>(tag)};
    std::size_t bytes = 0;
    WIN32_FIND_DATAW found{};
    const FindOwner search(FindFirstFileW((store.EstimatesFolder + L"\\*.gfe").c_str(), &found));
    do {
        bytes += BareLoad(store.EstimatesFolder + L"\\" + found.cFileName, entropy);
    } while (FindNextFileW(search.Get(), &found));
    return bytes;
}

void LoadCatalogue(const LocalStore& store, std::size_t files) {
    if (LoadAllEstimates(store).size() != files) std::abort();
}

void AddCatalogueMeasures(Measures& measures, const LocalStore& small, const LocalStore& large) {
    measures.push_back(Compare(
        "catalogue of 1,000", 7, 1.05, [&] { LoadCatalogue(small, 1000); },
        [&] { BareCatalogue(small); }));
    measures.push_back(Compare(
        "catalogue of 10,000", 3, 1.05, [&] { LoadCatalogue(large, 10000); },
        [&] { BareCatalogue(large); }));
    measures.push_back(Compare(
        "catalogue, ten times the files", 3, 10.5, [&] { LoadCatalogue(large, 10000); },
        [&] { LoadCatalogue(small, 1000); }));
    const auto load = [&] { LoadCatalogue(large, 10000); };
    measures.push_back(Compare(
        "patients of 10,000", 3, 1.05, [&] { (void)BuildPatientList(large); }, load));
    measures.push_back(Compare(
        "providers of 10,000", 3, 1.05, [&] { (void)BuildProviderList(large); }, load));
    measures.push_back(Compare(
        "revision among 10,000", 3, 1.02,
        [&] { (void)MakeRevision(large, TypicalEstimate(1, 6)); }, load));
}

double PrivateMegabytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return static_cast<double>(counters.PeakWorkingSetSize) / 1e6;
}

// Runs before anything else has raised the peak.
void AddMemoryMeasure(Measures& measures, const LocalStore& store) {
    const double payloads = static_cast<double>(BareCatalogue(store)) / 1e6;
    const double before = PrivateMegabytes();
    LoadCatalogue(store, 10000);
    const double peak = PrivateMegabytes() - before;
    measures.push_back(
        {"peak memory, catalogue of 10,000", peak, payloads, "MB", peak / payloads, 5.0});
}

// Calls `visit` for every text of the record, in stored order.
template <typename Value, typename Visit>
void ForEachText(const Value& value, Visit& visit) {
    if constexpr (std::is_same_v<Value, std::wstring>) {
        visit(value);
    } else if constexpr (requires { value.size(); }) {
        for (const auto& element : value) ForEachText(element, visit);
    } else if constexpr (!std::is_arithmetic_v<Value>) {
        ForEachField(value, [&](const wchar_t*, const auto& field) { ForEachText(field, visit); });
    }
}

// Converts every text to UTF-8 and back by Windows' own calls, and copies as many bytes.
void BarePayload(const Estimate& estimate, Bytes& bytes, std::wstring& text) {
    std::size_t at = 0;
    auto convert = [&](const std::wstring& source) {
        const int length = static_cast<int>(source.size());
        char* target = reinterpret_cast<char*>(bytes.data() + at);
        const int room = static_cast<int>(bytes.size() - at);
        const int size = length == 0 ? 0
                                     : WideCharToMultiByte(CP_UTF8, 0, source.data(), length,
                                                           target, room, nullptr, nullptr);
        text.assign(source.size(), L'\0');
        if (size > 0) MultiByteToWideChar(CP_UTF8, 0, target, size, text.data(), length);
        at += static_cast<std::size_t>(size);
    };
    ForEachText(estimate, convert);
    const Bytes copy(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
    if (copy.size() != at) std::abort();
}

void AddPayloadMeasure(Measures& measures) {
    const Estimate estimate = TypicalEstimate(1, 1000);
    Bytes room(WriteNativeEstimate(estimate).size());
    std::wstring text;
    constexpr int kRepeats = 50;
    measures.push_back(Compare(
        "payload of 1,000 lines, 50 times", 9, 1.5,
        [&] {
            for (int i = 0; i < kRepeats; ++i) {
                Estimate read;
                std::wstring error;
                if (!ReadNativeEstimate(WriteNativeEstimate(estimate), read, error)) std::abort();
            }
        },
        [&] {
            for (int i = 0; i < kRepeats; ++i) BarePayload(estimate, room, text);
        }));
}

void AddLegacyMeasure(Measures& measures, const std::wstring& folder) {
    const LocalStore store = LocalStoreBelow(folder + L"\\older");
    const Bytes key(32, 7);
    const std::wstring path = store.EstimatesFolder + L"\\older.gfe";
    const Bytes file = LegacyFile(LegacyDocument(TypicalEstimate(1, 100)), key);
    if (!WriteFileBytes(store.BaseFolder + L"\\data.key", key) || !WriteFileBytes(path, file)) {
        std::abort();
    }
    constexpr int kRepeats = 50;
    measures.push_back(Compare(
        "older file of 100 lines, 50 times", 9, 1.25,
        [&] {
            for (int i = 0; i < kRepeats; ++i) {
                Estimate estimate;
                std::wstring error;
                if (!OpenLegacyEstimateFile(path, store, estimate, error)) std::abort();
            }
        },
        [&] {
            for (int i = 0; i < kRepeats; ++i) {
                std::wstring error;
                if (DecryptLegacyFile(ReadFileBytes(path), store, error).empty()) std::abort();
            }
        }));
}

}  // namespace

void AddStoreMeasures(Measures& measures, const std::wstring& folder) {
    const LocalStore small = MakeStore(folder, 1000);
    const LocalStore large = MakeStore(folder, 10000);
    AddMemoryMeasure(measures, large);
    AddCatalogueMeasures(measures, small, large);
    AddPayloadMeasure(measures);
    AddLegacyMeasure(measures, folder);
}

}  // namespace tessaline::bench
