-- The command sets that an operator may run at a workstation.
-- parameter @operatorid int
-- parameter @workstationid int
-- result ObjectID int
-- result Name nvarchar(100)
select s.ObjectID, s.Name
from WOL_CommandSets s
inner join WOL_CommandSetRights r on r.ObjectID = s.ObjectID
where r.OperatorID = @operatorid and r.WorkstationID = @workstationid
order by s.Name
