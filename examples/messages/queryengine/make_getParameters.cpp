// Makes a list of parameters.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/queryengine/VqeGetParametersHelper.h>

int main() {
  VqeGetParametersHelper parameters;
  parameters.SetParameters({{"Year", "2024"}, {"Region", "North"}});
  TRNIDOM_Element message;
  parameters.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
