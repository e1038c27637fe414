-- What the database user of the workstations may do on MariaDB: what the statements of the component do,
-- and nothing else. An administrator makes the user first (create user), then runs this file with two
-- texts put in the place of the names that start with a colon:
--   :base    the database, as an identifier between backticks
--   :utente  the account: user, @ and host, each between apostrophes
--
-- Every statement ends with a semicolon at the end of a line, and no other line ends with one.

grant select on :base.letve00f to :utente;
grant select on :base.giace00f to :utente;
grant select on :base.clien to :utente;
grant select on :base.filiali to :utente;
grant select on :base.forni to :utente;
grant select on :base.codicizona to :utente;
grant select on :base.tabfatturazione to :utente;
grant select on :base.porto to :utente;
grant select on :base.ekelvorqzt_tabge00f to :utente;

-- A held shipment is added, noticed, charged and closed. Its keys, its holder and its invoice are never
-- changed.
grant insert on :base.giace00f to :utente;
grant update (GINRAV, GIDTAV, GIDES1, GIDTBF, GIGGSO, GIIMGI, FissoGiacenza) on :base.giace00f to :utente;

-- The save links the waybill to its held shipment, and takes the number from the counter.
grant update (LERFGI, LEANGI, LEDTCO) on :base.letve00f to :utente;
grant update (UltimoNumGiacenza) on :base.ekelvorqzt_tabge00f to :utente;

-- The waybill issuer of the host works with the connection string of the component, so it is the same
-- user: it adds the waybill of a re-delivery or of a return. A host whose issuer connects by itself
-- leaves this one out.
grant insert on :base.letve00f to :utente;
