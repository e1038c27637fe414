-- Who may do what with the register on MariaDB. The texts that start with a colon are replaced as in grants.sql.

-- The workstations' user reads the register and never writes it: the triggers do, as their definer. A note it adds,
-- without saying who it is and when, and changes no more.
grant select on :base.registro to :utente;
grant select, insert (GINRGI, GIANGI, autore, testo) on :base.registro_note to :utente;

-- The definer of the triggers: a role, that nobody logs in with. It needs what the triggers do, and the right to have
-- triggers on the two tables.
grant insert on :base.registro to registro_giacenza;
grant select, trigger on :base.giace00f to registro_giacenza;
grant select, trigger on :base.letve00f to registro_giacenza;
