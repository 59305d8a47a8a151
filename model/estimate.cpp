#include "model/estimate.h"

namespace tessaline {

double LineTotal(const ServiceLine& line) {
    return static_cast<double>(line.Quantity) * line.ExpectedCharge;
}

double TotalExpectedCharge(const Estimate& estimate) {
    double total = 0.0;
    for (const ServiceLine& line : estimate.Lines) total += LineTotal(line);
    return total;
}

std::wstring CodeText(const ServiceLine& line) {
    if (line.ServiceCode.empty()) return line.ServiceCodeType;
    return line.ServiceCodeType + L" " + line.ServiceCode;
}

}  // namespace tessaline
