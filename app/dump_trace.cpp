#include "dump_trace.h"

#include <cstdlib>
#include <type_traits>

#include "code_page.h"
#include "desk/guid_text.h"
#include "dump_nodes.h"

namespace {

Json ValueJson(CStage& stage, const trace::Value& value) {
    return std::visit(
        [&stage](const auto& held) -> Json {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::string>) {
                return ToUtf8(held);
            } else if constexpr (std::is_same_v<Held, RECT>) {
                return RectJson(held);
            } else if constexpr (std::is_same_v<Held, POINT>) {
                return Json::array({held.x, held.y});
            } else if constexpr (std::is_same_v<Held, GUID>) {
                return GuidText(held);
            } else if constexpr (std::is_same_v<Held, trace::Color>) {
                return ColorText(held.value);
            } else if constexpr (std::is_same_v<Held, trace::Node>) {
                return held.id == 0 ? Json(nullptr) : Json(ToUtf8(stage.Names().OfId(held.id)));
            } else if constexpr (std::is_same_v<Held, trace::Pointer>) {
                return held.present ? Json("pointer") : Json(nullptr);
            } else {
                return held;
            }
        },
        value);
}

Json ArgumentsJson(CStage& stage, const std::vector<trace::Value>& args) {
    Json json = Json::array();
    for (const trace::Value& value : args) {
        json.push_back(ValueJson(stage, value));
    }
    return json;
}

/// Plain numbers stay numbers: kinds and operation numbers.
Json NumberOrText(const std::string& text) {
    const bool bNumber = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return bNumber ? Json(std::strtoll(text.c_str(), nullptr, 10)) : Json(text);
}

Json RowsJson(CStage& stage, const std::vector<trace::Row>& rows, const char* pszOn) {
    Json json = Json::array();
    for (const trace::Row& row : rows) {
        json.push_back({{pszOn, NumberOrText(row.on)},
                        {"interface", row.iface.empty() ? Json(nullptr) : Json(row.iface)},
                        {"op", NumberOrText(row.op)},
                        {"args", ArgumentsJson(stage, row.args)}});
    }
    return json;
}

} // namespace

Json TraceJson(CStage& stage, const std::vector<trace::Row>& rows) { return RowsJson(stage, rows, "on"); }

Json CallsJson(CStage& stage, const std::vector<trace::Row>& rows) { return RowsJson(stage, rows, "kind"); }

Json PanelsJson(CStage& stage) {
    Json json = Json::object();
    for (const auto& [iid, operations] : stage.Desk().Told().All()) {
        for (const auto& [nOp, args] : operations) {
            json[iid][std::to_string(nOp)] = ArgumentsJson(stage, args);
        }
    }
    return json;
}
