#include <array>
#include <utility>

#include "component/component_file.h"
#include "image/picture_node.h"
#include "scenario/commands.h"
#include "scenario/error.h"

namespace {

constexpr char Usage[] = "component FILE (NAME X Y W H #RRGGBB|PICTURE|none [mask ellipse])...";

/// "NAME X Y W H".
ComponentObject TakePlace(CArguments& args) {
    ComponentObject object;
    object.name = args.Name("NAME");
    if (object.name.size() > MostNameBytes) {
        args.Fail("NAME is longer than " + std::to_string(MostNameBytes) + " bytes");
    }
    object.x = args.Int("X");
    object.y = args.Int("Y");
    object.width = args.Int("W");
    object.height = args.Int("H");
    return object;
}

/// Only pixels need a size that can have them: a rectangle alone may be any.
void RequireSize(const CArguments& args, const ComponentObject& object) {
    if (!buffer_host::IsSize(object.width, object.height)) {
        args.Fail("W by H is out of range");
    }
}

Picture TakeFill(CArguments& args, const ComponentObject& object) {
    Picture picture;
    if (args.TakeWord("none")) {
        picture.width = object.width;
        picture.height = object.height;
        return picture;
    }
    const bool bColor = args.NextIs(TokenKind::Color);
    const COLORREF crFill = bColor ? args.Color("#RRGGBB") : 0;
    const std::string file = bColor ? std::string() : args.Name("#RRGGBB, PICTURE or none");
    RequireSize(args, object);
    std::string error;
    if (!bColor && !LoadPicture(file.c_str(), picture, error)) {
        throw CScenarioError(file + ": " + error);
    }
    if (bColor ? !SolidPicture(crFill, object.width, object.height, picture)
               : !ScalePicture(picture, object.width, object.height, picture)) {
        throw CScenarioError(object.name + ": no memory for the picture");
    }
    return picture;
}

ComponentObject TakeObject(CArguments& args) {
    ComponentObject object = TakePlace(args);
    Picture picture = TakeFill(args, object);
    if (args.TakeWord("mask")) {
        args.OneOf("mask", {"ellipse"});
        RequireSize(args, object);
        if (!AddEllipseMask(picture)) {
            throw CScenarioError(object.name + ": no memory for the mask");
        }
    }
    object.image = std::move(picture.image);
    object.mask = std::move(picture.mask);
    return object;
}

void Component(CRunner&, CArguments& args) { WriteComponentTo(args); }

constexpr std::array<CommandRow, 1> Rows = {{{"component", Usage, Component}}};

} // namespace

void WriteComponentTo(CArguments& args) {
    const std::string file = args.Name("FILE");
    std::vector<ComponentObject> objects;
    do {
        objects.push_back(TakeObject(args));
    } while (!args.AtEnd());
    std::string error;
    if (!WriteComponent(file.c_str(), objects, error)) {
        throw CScenarioError(file + ": " + error);
    }
}

std::span<const CommandRow> ComponentCommands() { return Rows; }
