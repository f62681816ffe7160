fplayback -i on -r off -f 1 -e 100 -h 1 -t 0 -a on -k on -s 1
frange 1 100
set -g ACTIVETAKE = 'Main'
set -g JOB = '/projects/demo'
set -g _HIP_SAVEVERSION = '19.5.303'
take name Main kids 0
obj/cam1.parm {
version 0.8
res	[ 0	locks=0 ]	(	1920	1080	)
aspect	[ 0	locks=0 ]	(	1	)
}
out/Redshift_ROP1.parm {
version 0.8
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	1	100	1	)
RS_renderCamera	[ 0	locks=0 ]	(	/obj/cam1	)
RS_outputFileNamePrefix	[ 0	locks=0 ]	(	$HIP/render/$HIPNAME.$OS.$F4	)
RS_outputFileFormat	[ 0	locks=0 ]	(	.exr	)
RS_archive_enable	[ 0	locks=0 ]	(	"off"	)
RS_aovSuffix_1	[ 0	locks=0 ]	(	"diffuse"	)
RS_aovFileFormat_1	[ 0	locks=0 ]	(	.exr	)
RS_aovCustomPrefix_2	[ 0	locks=0 ]	(	"$HIP/render/aov/$AOV/$HIPNAME.$F4"	)
RS_aovSuffix_2	[ 0	locks=0 ]	(	"specular"	)
RS_aovFileFormat_2	[ 0	locks=0 ]	(	.exr	)
}
