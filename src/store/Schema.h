#pragma once

class Connection;

/// Makes the seven permanent tables in an empty store. The delivered store has them in place; the
/// station itself never makes them.
void CreateTables(Connection& connection);
