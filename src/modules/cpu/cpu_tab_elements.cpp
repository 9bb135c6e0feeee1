// The CPU elements' numbers, switches and names, and the order the list shows them in.
#include "modules/cpu/cpu_tab_elements.h"

#include "prefs/pref_keys.h"

#include <algorithm>

using namespace PrefKey;

const QList<CpuTabElement>& cpuTabElements()
{
    static const QList<CpuTabElement> elements{{1, Cpu_Display_Graph, "Graph"},
                                               {2, Cpu_Display_LevelBar, "Level bar"},
                                               {3, Cpu_Display_CircleMeter, "Cycle meter"},
                                               {4, Cpu_Display_Text, "Text"}};
    return elements;
}

const CpuTabElement* cpuTabElement(qint64 code)
{
    const auto& elements = cpuTabElements();
    const auto it = std::find_if(elements.begin(), elements.end(), [code](const auto& e) { return e.code == code; });
    return it == elements.end() ? nullptr : &*it;
}

QList<qint64> cpuTabShownOrder(const QList<qint64>& stored)
{
    QList<qint64> order;
    for (const qint64 code : stored) {
        if (cpuTabElement(code) != nullptr && !order.contains(code))
            order.append(code);
    }
    for (const CpuTabElement& element : cpuTabElements()) {
        if (!order.contains(element.code))
            order.append(element.code);
    }
    return order;
}
