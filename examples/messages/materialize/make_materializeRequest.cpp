// Makes a request to load a data file into a table.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/materialize/DXMaterializeRequestHelper.h>

int main() {
  using Request = DXMaterializeRequestHelper;
  Request request;
  request.AddTask(Request::kTaskLoadDataFromFile);

  I18NString type("OR");
  I18NString connectionString("Data Source=ora1");
  Request::TargetDataSource target;
  target.type = &type;  // copied by `SetTargetDataSource`
  target.connectionString = &connectionString;
  request.SetTargetDataSource(target);

  request.AddParameter(Request::kParamDataFilePath, "/data/sales.csv");
  request.AddParameter(Request::kParamTableName, "SALES");
  TRNIDOM_Element message;
  request.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
