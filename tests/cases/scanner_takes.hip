take name Main kids 1
take name  shot_a  x
take name Last
take name 
Take name Upper
tak name X
take nameless
out/show.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/$OS.$F4.exr"	)
}
