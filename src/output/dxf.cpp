// The interchange form of DXF.

#include "output/dxf.h"

#include "output/dxf_header.h"
#include "output/dxf_text.h"

#include <array>

namespace loftwing {

namespace {

void Section(DxfText &dxf, std::string_view name) {
    dxf.Texte(0, "SECTION");
    dxf.Texte(2, name);
}

void Header(DxfText &dxf) {
    Section(dxf, "HEADER");
    for (const DxfVariable &variable : DxfVariables()) {
        dxf.Texte(9, variable.nom);
        for (const auto &[code, value] : variable.valeurs) {
            dxf.Texte(code, value);
        }
    }
    dxf.Texte(0, "ENDSEC");
}

void Table(DxfText &dxf, std::string_view name, std::string_view handle) {
    dxf.Texte(0, "TABLE");
    dxf.Texte(2, name);
    dxf.Texte(5, handle);
    dxf.Texte(100, "AcDbSymbolTable");
    dxf.Texte(70, "10");
}

void Record(DxfText &dxf, std::string_view table, int handle, std::string_view marker,
            std::string_view name) {
    dxf.Texte(0, table);
    dxf.Entier(5, handle);
    dxf.Texte(100, "AcDbSymbolTableRecord");
    dxf.Texte(100, marker);
    dxf.Texte(2, name);
    dxf.Entier(70, 0);
}

void Viewports(DxfText &dxf) {
    Table(dxf, "VPORT", "10");
    Record(dxf, "VPORT", 11, "AcDbViewportTableRecord", "*ACTIVE");
    dxf.Point(10, 0.0, 0.0);
    dxf.Point(11, 2.0, 2.0);
    for (const int code :
         {12, 22, 13, 23, 14, 24, 15, 25, 16, 26, 36, 17, 27, 37, 40, 41, 42, 43, 44, 50, 51}) {
        dxf.Reel(code, 0.0);
    }
    for (const int code : {71, 72, 73, 74, 75, 76, 77, 78}) {
        dxf.Entier(code, 0);
    }
    dxf.Texte(0, "ENDTAB");
}

struct LineType {
    int handle;
    std::string_view name;
    std::string_view description;
    std::vector<double> dashes; ///< mm; gaps are negative
};

void LineTypes(DxfText &dxf, double diviseur) {
    const std::array<LineType, 3> types = {{
        {100, "CONT", "Solid Line __________", {}},
        {101, "HIDDEN", "Cache __ __ __ __ __ __ __", {6.35, -3.175}},
        {102, "AXIS", "Centre ____ _ ____ _ ____", {31.75, -6.35, 6.35, -6.35}},
    }};
    Table(dxf, "LTYPE", "50");
    for (const LineType &type : types) {
        Record(dxf, "LTYPE", type.handle, "AcDbLinetypeTableRecord", type.name);
        dxf.Trait(type.description, type.dashes, diviseur);
    }
    dxf.Texte(0, "ENDTAB");
}

void Layers(DxfText &dxf) {
    struct Layer {
        std::string_view name;
        int colour;
        std::string_view line_type;
    };
    const std::array<Layer, 6> layers = {{{kCalqueContour, 7, "CONT"},
                                          {kCalqueTalon, 10, "CONT"},
                                          {kCalqueAxe, 10, "AXIS"},
                                          {kCalqueCoffrage, 180, "CONT"},
                                          {kCalqueLongeron, 210, "CONT"},
                                          {kCalqueTrou, 195, "CONT"}}};
    Table(dxf, "LAYER", "25");
    int handle = 30;
    for (const Layer &layer : layers) {
        Record(dxf, "LAYER", handle++, "AcDbLayerTableRecord", layer.name);
        dxf.Entier(62, layer.colour);
        dxf.Texte(6, layer.line_type);
    }
    dxf.Texte(0, "ENDTAB");
}

void Entity(DxfText &dxf, std::string_view kind, int handle, std::string_view layer) {
    dxf.Texte(0, kind);
    dxf.Entier(5, handle);
    dxf.Texte(100, "AcDbEntity");
    dxf.Texte(8, layer);
}

/// A contour has more than a thousand of them, which differ in their places alone.
void Sommets(DxfText &dxf, const DxfPolyligne &line) {
    const std::string before = ItemsDxf([&line](DxfText &items) {
        items.Texte(0, "VERTEX");
        items.Texte(100, "AcDbVertex");
        items.Texte(100, "AcDb2dVertex");
        items.Texte(8, line.calque);
    });
    for (const DxfPoint &point : line.points) {
        dxf.Items({before});
        dxf.Sommet(point.x, point.y);
    }
}

struct Writer {
    DxfText &dxf;

    void operator()(const DxfPolyligne &line) const {
        Entity(dxf, "POLYLINE", line.handle, line.calque);
        dxf.Entier(66, 1);
        dxf.Texte(100, "AcDb2dPolyline");
        dxf.Entier(70, line.fermee ? 1 : 0);
        Sommets(dxf, line);
        dxf.Texte(0, "SEQEND");
    }
    void operator()(const DxfCercle &circle) const {
        Entity(dxf, "CIRCLE", circle.handle, circle.calque);
        dxf.Texte(100, "AcDbCircle");
        dxf.Entier(39, 0);
        dxf.Point(10, circle.centre.x, circle.centre.y);
        dxf.Reel(30, 0.0);
        dxf.Reel(40, circle.rayon);
    }
};

} // namespace

void EcritDxf(const DxfSource &source, std::string &out) {
    constexpr std::size_t kOctetsAutour = 16384;
    constexpr std::size_t kOctetsParSommet = 104;
    out.reserve(out.size() + kOctetsAutour + kOctetsParSommet * SommetsProbables(source.rib));
    DxfText dxf(out);
    Header(dxf);
    Section(dxf, "TABLES");
    Viewports(dxf);
    LineTypes(dxf, DiviseurDxf(source.Unite));
    Layers(dxf);
    dxf.Texte(0, "ENDSEC");
    Section(dxf, "ENTITIES");
    EntitesDxf(source, [&dxf](const DxfEntite &entity) { std::visit(Writer{dxf}, entity); });
    dxf.Texte(0, "ENDSEC");
    dxf.Texte(0, "EOF");
}

} // namespace loftwing
