#include "support/spedizioni.h"

namespace giacenza::prove {

void riempiDeposito(const BancaDati& base)
{
    base.esegui(QStringLiteral(R"(
insert into filiali values ('MI','Milano','Via dei Trasporti 12','Segrate','MI'),('BO','Bologna','Via Emilia 3','Bologna','BO');
insert into clien (Codice,RagioneSociale,Indirizzo,Localita,Provincia,CLCAP) values (1001,'Ferramenta Lombarda S.r.l.','Via Po 1','Monza','MB','20900'),(1002,'Oleificio del Garda','Via Lago 2','Salò','BS','25087');
insert into forni (Codice,RagioneSociale) values ('V01','Autotrasporti Riuniti');
insert into codicizona values ('L05','Brianza nord');
insert into porto values (1,'Franco'),(2,'Assegnato'),(3,'Reso');
insert into ekelvorqzt_tabge00f (UltimoNumGiacenza,IstrSuAvvGiac) values (41,'Attendiamo istruzioni entro cinque giorni.');
insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,lecmpe,ledest,leindd,lecapd,lelocd,leprod,lecdve,lelin1,lenatu,lerife,lerifd,leport,lecoll,lepeso,levolu,lecnss,leanpc,lenote,levame,LEDTCO)
 values ('MI','4711',2026,'2026-11-12',1001,'A','Utensileria del Lago','Corso Italia 44','22100','Como','CO','V01','L05','MINUTERIA','ORD-881','2026-11-10',2,3,45.50,0.250,120.00,0.00,'Solo al mattino',850.00,'2026-11-14');
insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,lerife) values ('MI','4712',2026,'2026-11-12',1001,'ORD-882');
insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,lerico,lerife) values ('MI','4713',2026,'2026-11-12',1001,'R','ORD-883');
insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,ledest,lecdve,lelin1,lerife,lerifd,LERFGI,LEANGI) values ('MI','4714',2026,'2026-11-12',1001,'Casalinghi Rossi','V01','L05','ORD-884','2026-11-09','40',2026);
insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,lecdve,lelin1,lerife) values ('XX','4715',2026,'2026-11-12',1001,'V99','L99','ORD-885');
insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GIFIGI,GINRGI,GIANGI,GIDTGI,GIGGSO,GINRAV,GIDTAV,GIDES1,GIDTBF,GIIMGI,GINRFA,GIDTFA,GICOFA,GIVNRG,GIVDTG)
 values ('MI','4714',2026,1001,'BO','40',2026,'2026-11-13',5,'2','2026-11-15','13/11/2026 - Chiuso per ferie','2026-11-18',15.00,'77','2026-11-20','F','39','2026-10-02');
)"));
}

} // namespace giacenza::prove
