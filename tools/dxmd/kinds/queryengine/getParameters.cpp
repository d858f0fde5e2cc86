#include <utility>
#include <vector>

#include <dxmd/queryengine/VqeGetParametersHelper.h>
#include <tools/dxmd/Kind.h>

namespace dxmd_tool {

namespace {

struct Parameter {
  I18NString name;
  I18NString value;
};

void shape(Shape& s, Parameter& parameter) {
  s.required("name", parameter.name, "The parameter's name");
  s.required("value", parameter.value, "Its value, which is secret where the name is that of a secret");
}

struct GetParameters {
  std::vector<Parameter> parameters;
};

void shape(Shape& s, GetParameters& list) {
  s.required("parameters", list.parameters, "The parameters, in order");
}

TRNIDOM_Element make(const GetParameters& list) {
  std::vector<std::pair<I18NString, I18NString>> parameters;
  for (const Parameter& parameter : list.parameters) parameters.emplace_back(parameter.name, parameter.value);
  VqeGetParametersHelper helper;
  helper.SetParameters(parameters);
  return made(helper);
}

GetParameters take(TRNIDOM_Element& root) {
  VqeGetParametersHelper helper;
  helper.Take(root);
  GetParameters list;
  for (const auto& [name, value] : helper.GetParameters()) list.parameters.push_back({name, value});
  return list;
}

}  // namespace

Kind kinds::getParameters() {
  Kind kind = kindOf(make, take);
  kind.summary = "List of parameters and their values";
  kind.purpose = R"(Passes a list of parameters with their values to the query engine, or back. It is no command and
has no envelope.)";
  kind.helper = "VqeGetParametersHelper";
  kind.roots = {"parameters"};
  kind.example = R"({
  "parameters": [
    {"name": "Year", "value": "2024"},
    {"name": "Region", "value": ""}
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
