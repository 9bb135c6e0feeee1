// The built-in SMC temperature key names, as literal tables.
#include "collect/smc_sensor_names.h"

namespace {

std::vector<SmcSensorName> gpuAndDrives()
{
    return {{"TG0D", "GPU die"},         {"TG0H", "GPU Heatsink"},
            {"TG0P", "GPU Proximity"},   {"TG1D", "GPU 2 die"},
            {"TG1H", "GPU 2 Heatsink"},  {"TG1P", "GPU 2 Proximity"},
            {"TH0P", "HardDisk proximity"}, {"TH1P", "HardDisk 2 proximity"},
            {"TH2P", "HardDisk 3 proximity"}, {"TH3P", "HardDisk 4 proximity"},
            {"TL0P", "LCD proximity"},   {"TO0P", "Optical Drive proximity"},
            {"TW0P", "Airport Card"},    {"Tm0P", "Misc Local"}};
}

std::vector<SmcSensorName> memoryAndBoard()
{
    return {{"TM0P", "Memory Bank A1"},   {"TM1P", "Memory Bank A2"},   {"TM2P", "Memory Bank A3"},
            {"TM3P", "Memory Bank A4"},   {"TM4P", "Memory Bank A5"},   {"TM5P", "Memory Bank A6"},
            {"TM6P", "Memory Bank A7"},   {"TM7P", "Memory Bank A8"},   {"TM8P", "Memory Bank B1"},
            {"TM9P", "Memory Bank B2"},   {"TMAP", "Memory Bank B3"},   {"TMBP", "Memory Bank B4"},
            {"TMCP", "Memory Bank B5"},   {"TMDP", "Memory Bank B6"},   {"TMEP", "Memory Bank B7"},
            {"TMFP", "Memory Bank B8"},   {"TM0S", "Memory Module A1"}, {"TM1S", "Memory Module A2"},
            {"TM2S", "Memory Module A3"}, {"TM3S", "Memory Module A4"}, {"TM4S", "Memory Module A5"},
            {"TM5S", "Memory Module A6"}, {"TM6S", "Memory Module A7"}, {"TM7S", "Memory Module A8"},
            {"TM8S", "Memory Module B1"}, {"TM9S", "Memory Module B2"}, {"TMAS", "Memory Module B3"},
            {"TMBS", "Memory Module B4"}, {"TMCS", "Memory Module B5"}, {"TMDS", "Memory Module B6"},
            {"TMES", "Memory Module B7"}, {"TMFS", "Memory Module B8"}, {"TB0T", "Enclosure Base 1"},
            {"TB1T", "Enclosure Base 2"}, {"TB2T", "Enclosure Base 3"}, {"TB3T", "Enclosure Base 4"},
            {"TN0H", "Northbridge"},      {"TN0P", "Northbridge 1"},    {"TN1P", "Northbridge 2"},
            {"TS0C", "Expansion Slots"}};
}

std::vector<SmcSensorName> processorsAndPower()
{
    // Tp0P goes by two names, "PPowerboard Proximity" and "PPower Supply 1"; it keeps the first,
    // as every key keeps the name it is given first, and the second is not listed.
    return {{"TCXC", "PECI CPU"},          {"TCXc", "PPECI CPU"},          {"TC0P", "PCPU 1 Proximity"},
            {"TC0H", "PCPU 1 Heatsink"},   {"TC0D", "PCPU 1 Package"},     {"TC0E", "PCPU 1"},
            {"TC0F", "PCPU 1"},            {"TC1C", "PCPU Core 1"},        {"TC2C", "PCPU Core 2"},
            {"TC3C", "PCPU Core 3"},       {"TC4C", "PCPU Core 4"},        {"TC5C", "PCPU Core 5"},
            {"TC6C", "PCPU Core 6"},       {"TC7C", "PCPU Core 7"},        {"TC8C", "PCPU Core 8"},
            {"TCAH", "PCPU 1 Heatsink Alt."}, {"TCAD", "PCPU 1 Package Alt."}, {"TC1P", "PCPU 2 Proximity"},
            {"TC1H", "PCPU 2 Heatsink"},   {"TC1D", "PCPU 2 Package"},     {"TC1E", "PCPU 2"},
            {"TC1F", "PCPU 2"},            {"TCBH", "PCPU 2 Heatsink Alt."}, {"TCBD", "PCPU 2 Package Alt."},
            {"TCSC", "PPECI SA"},          {"TCSc", "PPECI SA"},           {"TCSA", "PPECI SA"},
            {"TCGC", "PPECI GPU"},         {"TCGc", "PPECI GPU"},          {"TG0P", "PGPU Proximity"},
            {"TG0D", "PGPU Die"},          {"TG1D", "PGPU Die"},           {"TG0H", "PGPU Heatsink"},
            {"TG1H", "PGPU Heatsink"},     {"Ts0S", "PMemory Proximity"},  {"TM0P", "PMem Bank A1"},
            {"TM1P", "PMem Bank A2"},      {"TM8P", "PMem Bank B1"},       {"TM9P", "PMem Bank B2"},
            {"TM0S", "PMem Module A1"},    {"TM1S", "PMem Module A2"},     {"TM8S", "PMem Module B1"},
            {"TM9S", "PMem Module B2"},    {"TN0D", "PNorthbridge Die"},   {"TN0P", "PNorthbridge Proximity 1"},
            {"TN1P", "PNorthbridge Proximity 2"}, {"TN0C", "PMCH Die"},   {"TN0H", "PMCH Heatsink"},
            {"TP0D", "PPCH Die"},          {"TPCD", "PPCH Die"},           {"TP0P", "PPCH Proximity"},
            {"TA0P", "PAirflow 1"},        {"TA1P", "PAirflow 2"},         {"Th0H", "PHeatpipe 1"},
            {"Th1H", "PHeatpipe 2"},       {"Th2H", "PHeatpipe 3"},        {"Tm0P", "PMainboard Proximity"},
            {"Tp0P", "PPowerboard Proximity"}, {"Ts0P", "PPalm Rest"},    {"Tb0P", "PBLC Proximity"},
            {"TL0P", "PLCD Proximity"},    {"TW0P", "PAirport Proximity"}, {"TH0P", "PHDD Bay 1"},
            {"TH1P", "PHDD Bay 2"},        {"TH2P", "PHDD Bay 3"},         {"TH3P", "PHDD Bay 4"},
            {"TO0P", "POptical Drive"},    {"TB0T", "PBattery TS_MAX"},    {"TB1T", "PBattery 1"},
            {"TB2T", "PBattery 2"},        {"TB3T", "PBattery"},           {"Tp0C", "PPower Supply 1 Alt."},
            {"Tp1P", "PPower Supply 2"},   {"Tp1C", "PPower Supply 2 Alt."}, {"Tp2P", "PPower Supply 3"},
            {"Tp3P", "PPower Supply 4"},   {"Tp4P", "PPower Supply 5"},    {"Tp5P", "PPower Supply 6"},
            {"TS0C", "PExpansion Slots"},  {"TA0S", "PPCI Slot 1 Pos 1"},  {"TA1S", "PPCI Slot 1 Pos 2"},
            {"TA2S", "PPCI Slot 2 Pos 1"}, {"TA3S", "PPCI Slot 2 Pos 2"}};
}

} // namespace

const std::vector<std::vector<SmcSensorName>>& builtInSmcSensorNames()
{
    static const std::vector<std::vector<SmcSensorName>> tables{gpuAndDrives(), memoryAndBoard(),
                                                                processorsAndPower()};
    return tables;
}
