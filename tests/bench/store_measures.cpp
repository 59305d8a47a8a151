// What files cost: catalogue, lists, revisions, payloads, the older edition.
#include <windows.h>

#include <psapi.h>
#include <wincrypt.h>

#include <cstdlib>

#include "legacy/legacy_cipher.h"
#include "legacy/legacy_file.h"
#include "model/estimate_fields.h"
#include "platform/handles.h"
#include "store/catalogue.h"
#include "store/native_format.h"
#include "store/revision.h"
#include "tests/bench/bench.h"
#include "tests/support/legacy_writer.h"
#include "ui/sample_estimate.h"

namespace tessaline::bench {
namespace {

void Demand(bool done) {
    if (!done) std::abort();
}

Estimate SampleWith(std::size_t lines, int number = 0) {
    Estimate estimate = SampleEstimate();
    const ServiceLine line = estimate.Lines[0];
    estimate.Lines.resize(lines, line);
    estimate.Patient.LastName += std::to_wstring(number);
    estimate.Provider.OrganizationName += std::to_wstring(number);
    estimate.LastModifiedOn += number * 1000;
    return estimate;
}

// Protecting is slow on some systems, so the files take their contents from a few estimates.
LocalStore MakeStore(const std::wstring& folder, int files) {
    constexpr int kContents = 100;
    std::vector<Bytes> contents;
    std::wstring error;
    for (int number = 0; number < kContents; ++number) {
        contents.push_back(ProtectEstimateData(WriteNativeEstimate(SampleWith(6, number)), error));
    }
    const LocalStore store = LocalStoreBelow(folder);
    EnsureFolder(store.EstimatesFolder);
    for (int number = 0; number < files; ++number) {
        const std::wstring path =
            store.EstimatesFolder + L"\\" + std::to_wstring(number) + L".gfe";
        const FileOwner file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                         FILE_ATTRIBUTE_NORMAL, nullptr));
        const Bytes& content = contents[static_cast<std::size_t>(number % kContents)];
        DWORD written = 0;
        Demand(WriteFile(file.Get(), content.data(), DWORD(content.size()), &written, nullptr));
    }
    return store;
}

// Opens, reads and unprotects one file by Windows' own calls, and gives the payload back at once.
std::size_t BareLoad(const std::wstring& path, std::vector<BYTE>& room) {
    wchar_t tag[] = L"KOVAL-DQX-STRATA-8391";
    DATA_BLOB entropy{sizeof(tag), reinterpret_cast<BYTE*>(tag)};
    const FileOwner file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD read = 0;
    Demand(ReadFile(file.Get(), room.data(), DWORD(room.size()), &read, nullptr));
    DATA_BLOB blob{read - 4, room.data() + 4};
    DATA_BLOB plain{};
    Demand(CryptUnprotectData(&blob, nullptr, &entropy, nullptr, nullptr,
                              CRYPTPROTECT_UI_FORBIDDEN, &plain));
    LocalFree(plain.pbData);
    return plain.cbData;
}

// The bytes of all payloads.
std::size_t BareCatalogue(const LocalStore& store) {
    std::vector<BYTE> room(100'000);
    std::size_t bytes = 0;
    WIN32_FIND_DATAW found{};
    const FindOwner search(FindFirstFileW((store.EstimatesFolder + L"\\*.gfe").c_str(), &found));
    do {
        bytes += BareLoad(store.EstimatesFolder + L"\\" + found.cFileName, room);
    } while (FindNextFileW(search.Get(), &found));
    return bytes;
}

double PeakMegabytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return static_cast<double>(counters.PeakWorkingSetSize) / 1e6;
}

// Comes first, while nothing else has raised the peak.
void AddMemory(Measures& measures, const LocalStore& store) {
    const double payloads = static_cast<double>(BareCatalogue(store)) / 1e6;
    const double before = PeakMegabytes();
    Demand(LoadAllEstimates(store).size() == 10'000);
    const double peak = PeakMegabytes() - before;
    measures.push_back(
        {"peak memory, catalogue of 10,000", peak, payloads, "MB", peak / payloads, 5.0});
}

void AddCatalogue(Measures& measures, const LocalStore& small, const LocalStore& large) {
    const auto load = [](const LocalStore& store) {
        return
            [&store] { return Milliseconds([&] { Demand(!LoadAllEstimates(store).empty()); }); };
    };
    const auto bare = [](const LocalStore& store) {
        return [&store] { return Milliseconds([&] { BareCatalogue(store); }); };
    };
    const std::vector<double> few = Race(5, {load(small), bare(small)});
    const std::vector<double> many = Race(
        3, {load(large), bare(large), load(small),
            [&] { return Milliseconds([&] { Demand(BuildPatientList(large).size() == 100); }); },
            [&] { return Milliseconds([&] { Demand(BuildProviderList(large).size() == 100); }); },
            [&] { return Milliseconds([&] { (void)MakeRevision(large, SampleWith(6)); }); }});
    measures.push_back(Ratio("catalogue of 1,000", few[0], few[1], 1.05));
    measures.push_back(Ratio("catalogue of 10,000", many[0], many[1], 1.05));
    measures.push_back(Ratio("catalogue, ten times the files", many[0], many[2], 10.5));
    measures.push_back(Ratio("patients of 10,000", many[3], many[0], 1.05));
    measures.push_back(Ratio("providers of 10,000", many[4], many[0], 1.05));
    measures.push_back(Ratio("a revision among 10,000", many[5], many[0], 1.02));
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
void BarePayload(const Estimate& estimate, std::vector<char>& room) {
    char* at = room.data();
    auto convert = [&](const std::wstring& text) {
        const int length = static_cast<int>(text.size());
        if (length == 0) return;
        const int size =
            WideCharToMultiByte(CP_UTF8, 0, text.data(), length, at,
                                int(room.data() + room.size() - at), nullptr, nullptr);
        std::wstring back(text.size(), L'\0');
        MultiByteToWideChar(CP_UTF8, 0, at, size, back.data(), length);
        at += size;
    };
    ForEachText(estimate, convert);
    Demand(std::vector<char>(room.data(), at).size() > 1000);
}

void AddPayload(Measures& measures) {
    const Estimate estimate = SampleWith(1000);
    std::vector<char> room(WriteNativeEstimate(estimate).size());
    const auto writeAndRead = [&] {
        Estimate read;
        std::wstring error;
        Demand(ReadNativeEstimate(WriteNativeEstimate(estimate), read, error));
    };
    measures.push_back(Compare("payload of 1,000 lines, both ways", 50, 1.5, writeAndRead,
                               [&] { BarePayload(estimate, room); }));
}

std::wstring OlderDocument() {
    std::wstring json = LR"({"EstimateId": "GFE-20240229-235959", "Lines": [)";
    for (int line = 0; line < 100; ++line) {
        json +=
            LR"({"ServiceItem": "Surgeon's fee, arthroscopy", "Quantity": 2, )"
            LR"("ServiceAddress": "400 Capitol Avenue", "DiagnosisCode": "S83.242A", )"
            LR"("ServiceCodeType": "CPT", "ServiceCode": "29882", "ExpectedCharge": 415.5}, )";
    }
    return json + LR"({}], "ProviderNotes": "Bring a list of your medicines."})";
}

void AddLegacy(Measures& measures, const LocalStore& store) {
    const Bytes key(32, 7);
    const std::wstring path = store.BaseFolder + L"\\older.gfe";
    std::wstring error;
    Demand(WriteFileBytes(store.BaseFolder + L"\\data.key", key) &&
           WriteFileBytes(path, LegacyFile(OlderDocument(), key)));
    const auto open = [&] {
        Estimate estimate;
        Demand(OpenLegacyEstimateFile(path, store, estimate, error));
    };
    measures.push_back(Compare("older file of 100 lines", 50, 1.25, open, [&] {
        Demand(!DecryptLegacyFile(ReadFileBytes(path), store, error).empty());
    }));
}

}  // namespace

void AddStoreMeasures(Measures& measures, const std::wstring& folder) {
    const LocalStore small = MakeStore(folder + L"\\small", 1000);
    const LocalStore large = MakeStore(folder + L"\\large", 10'000);
    AddMemory(measures, large);
    AddCatalogue(measures, small, large);
    AddPayload(measures);
    AddLegacy(measures, small);
}

}  // namespace tessaline::bench
