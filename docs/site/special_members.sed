# What needs no words in a header: members that are as the language makes them.
s|^( *)[A-Za-z:]+\(const [A-Za-z:]+&\) = default;$|\1/// Copies all parts.\n&|
s|^( *)[A-Za-z:]+& operator=\(const [A-Za-z:]+&\) = default;$|\1/// Assigns all parts.\n&|
s|^( *)[A-Za-z:]+\([A-Za-z:]+&&\) = default;$|\1/// Moves all parts.\n&|
s|^( *)[A-Za-z:]+& operator=\([A-Za-z:]+&&\) = default;$|\1/// Moves all parts.\n&|
