#pragma once

class Connection;

/// Makes the seven permanent tables in an empty store. The delivered store already has them; the
/// station itself never makes them.
void CreateTables(Connection& connection);
