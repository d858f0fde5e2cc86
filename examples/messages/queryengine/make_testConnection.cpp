// Makes the command that tests a database connection.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/queryengine/VqeTestConnectionHelper.h>

int main() {
  const VqeTestConnectionHelper command("Orders", "Orders test", "Orders sign-on", "reader", "swordfish",
                                        "Driver=Example;Server=db.example.com", "", "Staff");
  TRNIDOM_Element message;
  command.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
