fplayback -i on -r off -f 1 -e 240 -h 1 -t 0 -a on -k on -s 1
frange 1 240
set -g ACTIVETAKE = 'Main'
set -g JOB = '/projects/demo'
set -g _HIP_SAVEVERSION = '19.5.303'
take name Main kids 0
obj/geo1/rop_geometry1.parm {
version 0.8
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	1	240	1	)
sopoutput	[ 0	locks=0 ]	(	$HIP/geo/$OS.$F4.bgeo.sc	)
}
out/pyro_sim_cache.parm {
version 0.8
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	1	240	1	)
sopoutput	[ 0	locks=0 ]	(	$HIP/geo/pyro/$OS.$F4.bgeo.sc	)
}
out/alembic1.parm {
version 0.8
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	1	240	1	)
filename	[ 0	locks=0 ]	(	$HIP/abc/$HIPNAME.abc	)
}
