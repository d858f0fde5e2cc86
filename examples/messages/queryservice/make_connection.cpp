// Makes a connection, for a command to take with `SetConnection`.

#include <iostream>

#include <trn/I18NLocale.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/queryservice/QsApiConnectHelper.h>

int main() {
  QsApiConnectHelper connection;
  connection.SetPassport("101:5f3c");
  connection.SetModelPath("/content/package[@name='Sales']");
  connection.SetRunLocale(I18NLocale("en-gb"));
  connection.AddModel("Sales", true);
  TRNIDOM_Element element;
  connection.Make(element);
  std::cout << TRNIDOM_Writer::toString(element) << "\n";
}
