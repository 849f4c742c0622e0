-- How the accountant wants the table of what is paid: one row a profile that somebody made. May be run again; a file without the table has none
-- yet. Profiles are no figures and not in the edit trail.
CREATE TABLE IF NOT EXISTS _Profile (
    ProfileID INTEGER PRIMARY KEY AUTOINCREMENT,
    Name TEXT,
    Definition TEXT
);
